"""Runs lorvane-cli as a person or a script would: arguments in, exit code and streams out."""

import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PROGRAM, EXAMPLES = sys.argv[1], Path(sys.argv[2])
DOCUMENTS = [Path(document) for document in sys.argv[3:]]
STUDY = str(EXAMPLES / "schools.Lorvane")
ANSWERS = ("Power", "Cost", "Degrees of freedom")


def run(*arguments, text="", folder=None):
    done = subprocess.run([PROGRAM, *arguments], input=text, capture_output=True, text=True, timeout=60, cwd=folder,
                          env={**os.environ, "LC_ALL": "C"})
    return done.returncode, done.stdout, done.stderr


def check_answers(folder):
    code, out, _ = run("power", STUDY)
    assert code == 0 and "Power" in out and "Degrees of freedom  14" in out and "Cost" in out, out
    code, out, _ = run("power", STUDY, "--scenario", "20 schools", "--json")
    answer = json.loads(out)
    assert code == 0 and answer["valid"] and answer["df"] == 18 and 0.86 < answer["power"] < 0.87, out
    for option, has_df in (("PowerOption=1", True), ("PowerOption=2", False)):
        binary = [STUDY, "--set", "DataType=2", "--set", "BinaryType=3", "--set", "txtRD=0.1", "--set", option]
        assert ("Degrees of freedom" in run("power", *binary)[1]) == has_df, option
        assert ("df" in json.loads(run("power", *binary, "--json")[1])) == has_df, option
    code, out, _ = run("scenarios", STUDY)
    assert code == 0 and len(out.splitlines()) == 4 and "No pretest" in out, out
    steering = str(Path(folder) / "steering.Lorvane")
    run("drive", text='set txtName(1) "a\\n\\u001b[31m"\nset txtGroupName(1) "\\u202e"\ntool "Add scenario"\n'
        f'type frmScenariosName.txtScenarioName "b\\u001b[2J"\nsave {steering}\n')
    for command in ("scenarios", "optimal", "mdes", "power"):
        _, out, err = run(command, steering)
        assert not set("\x1b\u202e") & set(out + err), (command, out, err)
    code, out, _ = run("scenarios", STUDY, "--json")
    assert [row["name"] for row in json.loads(out)["scenarios"]] == ["16 schools", "No pretest", "20 schools"]
    new = str(Path(folder) / "new.Lorvane")
    code, out, _ = run("new", "--out", new, "--set", "txtd=0.4", "--set", "ICC Metric=1", "--set", "NumLevels=3",
                       "--set", "RandomizedLevel=2", "--set", "txtName(1)=Patients")
    assert code == 0, out
    for command in (["new"], ["optimal", STUDY]):
        code, _, err = run(*command, "--out", new)
        assert code == 3 and "--force" in err, err
    code, out, _ = run("drive", new, text='get NumLevels RandomizedLevel txtd txtName(1) "ICC Metric"\n')
    assert json.loads(out) == {"NumLevels": 3, "RandomizedLevel": 2, "txtd": 0.4, "txtName(1)": "Patients",
                               "ICC Metric": 1}, out


def check_graph(folder):
    graph = ["graph", STUDY, "--x", "X Number of Level 3", "--series", "ICC for Level 3", "--values", "0.3,0.05"]
    heads = {"png": b"\x89PNG", "jpg": b"\xff\xd8", "svg": b"<?xml", "pdf": b"%PDF", "csv": b"Power as",
             "xls": b"\xd0\xcf\x11\xe0", "xlsx": b"PK"}
    for ending, head in heads.items():
        out = Path(folder) / f"graph.{ending}"
        code, _, err = run(*graph, "--cost", "--out", str(out))
        assert code == 0 and out.read_bytes().startswith(head), (ending, err)
    rows = (Path(folder) / "graph.csv").read_text().splitlines()
    assert [row.split(",")[0] for row in rows[2:5]] == ["Number of schools", "0.0500", "0.3000"], rows
    assert len(rows) == 9 and rows[2].endswith(",29") and "0.9" in rows[3], rows
    by_range = [STUDY, "--x", "Std difference, d", "--range", "0.4:0.1", "--out", str(Path(folder) / "d.csv")]
    assert run("graph", *by_range)[0] == 0
    assert len((Path(folder) / "d.csv").read_text().splitlines()[2].split(",")) == 52
    refusals = ((2, "nearest", "--x", "ICC for Lvel 3"), (2, "no effect", "--x", "MRange for Level 3"),
                (2, "0.000 to 0.", "--x", "ICC for Level 3", "--range", "0:2"), (2, "--range", "--x", "Alpha", "--range", "5"),
                (2, "whole", "--x", "Number of Level 3", "--range", "2.5:9"),
                (2, "--values", "--x", "Alpha", "--series", "ICC for Level 3", "--values", "0.1"),
                (1, "covariates", "--x", "R-sq for Level 2", "--range", "0.1:0.5", "--set", "txtQ(2)=0", "--set", "txtRsq(2)=0"),
                (1, "degrees of freedom", "--x", "Alpha", "--set", "txtNB(3)=2"))
    for code, words, *arguments in refusals:
        answer = run("graph", STUDY, *arguments, "--out", str(Path(folder) / "no.png"))
        assert answer[0] == code and words in answer[2], (arguments, answer)
    assert run(*graph, "--out", "graph.bmp")[0] == 2 and run(*graph, "--out", "/nowhere/a.png")[0] == 3
    assert not (Path(folder) / "no.png").exists()


def check_report(folder):
    heads = {"PDF": b"%PDF", "rtf": b"{\\rtf1", "txt": b"Executive summary\n"}
    for ending, head in heads.items():
        out = Path(folder) / f"report.{ending}"
        code, told, err = run("report", STUDY, "--out", str(out))
        assert code == 0 and str(out) in told and out.read_bytes().startswith(head), (ending, err)
    text = (Path(folder) / "report.txt").read_text(encoding="utf-8")
    assert "power of 77.3% " in text and "Checklist" not in text and "classes are randomized" in text, text
    out = str(Path(folder) / "checklist.txt")
    assert run("report", STUDY, "--checklist", "--set", "txtd=0", "--out", out)[0] == 0
    assert "\nChecklist for the sample size\n---" in Path(out).read_text(encoding="utf-8")
    no = Path(folder) / "no.odt"
    for code, words, *arguments in ((2, ".pdf, .rtf or .txt", "--out", str(no)), (2, "--out"), (3, "written", "--out", "/nowhere/a.pdf"),
                                    (1, "degrees of freedom", "--set", "txtNB(3)=2", "--out", f"{no}.txt")):
        answer = run("report", STUDY, *arguments)
        assert answer[0] == code and words in answer[2], (arguments, answer)
    assert not no.exists() and not Path(f"{no}.txt").exists()


def check_mdes():
    code, out, _ = run("mdes", STUDY)
    assert code == 0 and "Standardized mean difference" in out and "The minimum detectable effect size is" in out, out
    code, out, _ = run("mdes", STUDY, "--power", "0.877", "--json")
    answer = json.loads(out)
    assert code == 0 and answer["found"] and answer["requiredPower"] == 0.877 and answer["message"] == "", out
    for thousandths, reaches in ((0, True), (-0.001, False)):
        effect = f"txtd={answer['effect'] + thousandths:.3f}"
        power = json.loads(run("power", STUDY, "--set", effect, "--json")[1])["power"]
        assert (power >= 0.877) == reaches, (effect, power)
    binary = ["--set", "DataType=2", "--set", "txtPrev=0.4"]
    code, out, _ = run("mdes", STUDY, *binary, "--json")
    answer = json.loads(out)
    assert code == 0 and answer["effectName"] == "odds ratio" and answer["controlRate"] == 0.4, out
    code, out, err = run("mdes", STUDY, *binary, "--set", "txtNB(3)=3", "--power", "0.999")
    assert code == 1 and out == "" and err.startswith("The highest possible power is "), err
    answer = json.loads(run("mdes", STUDY, *binary, "--set", "txtNB(3)=3", "--power", "0.999", "--json")[1])
    assert not answer["found"] and f"with an effect size of {answer['effect']}." in answer["message"], answer
    code, out, err = run("mdes", STUDY, "--set", "txtICC(2)=0.95", "--json")
    assert code == 1 and json.loads(out)["power"] is None and "sum of the ICCs" in err, err


def check_examples():
    studies = sorted(EXAMPLES.glob("*.Lorvane"))
    assert len(studies) == 5, studies
    for study in studies:
        rows = json.loads(run("scenarios", str(study), "--json")[1])["scenarios"]
        assert len(rows) == 3, study
        for row in rows:
            answer = json.loads(run("power", str(study), "--scenario", row["name"], "--json")[1])
            assert f"{answer['power']:.3f}" == row["power"] and f"{answer['cost']:,}" == row["cost"], (study, row)


def check_long_lines():
    """A line that is a mistake, or asks for much, is answered at once."""
    many = {f"name{number}": 1 for number in range(200_000)}
    names = "x" * 100_000
    lines = [f"get {names}", f"tool {names}", f"load {json.dumps(many)}", "spin spnNT(2) up 1000000",
             "spin frmOptimal.OptimalspnNT(1) up 1000000", "get txtNT(2)"]
    started = time.monotonic()
    code, out, _ = run("drive", text="\n".join(lines) + "\n")
    took = time.monotonic() - started
    answers = [json.loads(line) for line in out.splitlines()]
    assert took < 8 and all(len(answer["error"]) < 200 for answer in answers[:3]), (took, answers)
    assert '"name0"' in answers[2]["error"] and answers[-1] == {"txtNT(2)": 1000000}, answers
    last_counts = 'load {"txtd": 99, "txtSD": 2, "txtd": 0.5}\nget txtd txtSD\n'
    assert run("drive", text=last_counts)[1] == '{"ok":true}\n{"txtd":0.5,"txtSD":2}\n', "not the last value of a name"


def check_new_study():
    template = Path(PROGRAM).parent / "Template Means.Lorvane"
    code, out, _ = run("drive", text=f'get window:20\nset txtd 0.9\nopen "{template}"\nget txtd CurrentFile\ngrid flexfiles\n')
    answers = [json.loads(line) for line in out.splitlines()]
    assert answers[0] == {"window:20": 4} and answers[3] == {"txtd": 0, "CurrentFile": ""}, out
    assert not any(row[0] for row in answers[4]), "the template is no recent file"


def check_optimal(folder):
    cheap = str(Path(folder) / "cheap.Lorvane")
    code, out, _ = run("optimal", STUDY, "--power", "0.9", "--fix", "1=22", "--out", cheap)
    assert code == 0 and "22 in each of the Classes" in out and "Cost" in out, out
    answer = json.loads(run("power", cheap, "--json")[1])
    assert 0.9 <= answer["power"] < 0.92, answer
    code, out, _ = run("optimal", STUDY, "--json")
    answer = json.loads(out)
    assert answer["found"] and answer["power"] >= 0.8 and len(answer["sizes"]) == 3 and answer["cost"] > 0, out
    told = json.loads(run("optimal", STUDY, "--told", "--json")[1])
    assert answer["proven"] and not told["proven"] and answer["cost"] < told["cost"] == answer["told"]["cost"], answer
    assert run("optimal", STUDY, "--force", "--out", cheap)[0] == 0
    assert json.loads(run("power", cheap, "--json")[1])["cost"] == answer["cost"], "the proven design is saved"
    most = json.loads(run("optimal", STUDY, "--budget", str(answer["cost"]), "--json")[1])
    assert most["proven"] and most["power"] >= answer["power"] and most["cost"] + most["left"] == most["budget"], most
    code, out, err = run("optimal", STUDY, "--budget", "300")
    assert code == 1 and out == "" and err.startswith("The budget is too low. The cheapest valid design costs $"), err
    code, out, err = run("optimal", STUDY, "--set", "txtModel(3)=1")
    assert code == 1 and out == "" and err.startswith("Model is fixed. Optimal design cannot be computed"), err
    code, out, err = run("optimal", STUDY, "--json", "--set", "txtNB(3)=1")
    assert code == 1 and not json.loads(out)["found"] and "degrees of freedom" in err, (out, err)
    for wrong in (["--fix", "3=2"], ["--fix", "1"], ["--fix", "1=0"], ["--power", "1"], ["--iterations", "7"],
                  ["--budget", "0"], ["--budget", "9", "--power", "0.9"], ["--budget", "9", "--told"]):
        code, out, err = run("optimal", STUDY, *wrong)
        assert code == 2 and out == "" and len(err.splitlines()) == 1, (wrong, code, out, err)


def check_no_answer():
    code, out, err = run("power", STUDY, "--set", "txtNB(3)=1")
    assert code == 1 and "Cost" in out and err.startswith("There are insufficient degrees of freedom. "), err
    code, out, err = run("power", STUDY, "--json", "--set", "txtICC(2)=0.95")
    assert code == 1 and json.loads(out)["power"] is None and "sum of the ICCs" in err, err
    code, out, err = run("power", STUDY, "--set", "DataType=2", "--set", "BinaryType=2")
    assert code == 1 and "has no test" in err, err


WRONG_USE = [
    (["power", STUDY, "--set", "txtNT(9)=3"], '"txtNT(9)"; the nearest is "txtNT(1)"'),
    (["power", STUDY, "--set", "txtd=much"], "txtd takes a number"),
    (["power", STUDY, "--set", "txtd"], "FIELD=VALUE"),
    (["power", STUDY, "--set", "txtAlpha=2"], "txtAlpha must lie from 0.001 to 0.49"),
    (["power", STUDY, "--set", "NumLevels=7"], "NumLevels must be 2, 3 or 4"),
    (["power", STUDY, "--set", "RandomizedLevel=4"], "RandomizedLevel"),
    (["power", STUDY, "--scenario", "20 school"], 'the nearest is "20 schools"'),
    (["optimal", STUDY, "--iterations", "7"], "--iterations must be 5, 10, 20 or 30, not 7."),
    (["power", STUDY, "--set", "txtd=0,13"], "use a point"),
    (["power", STUDY, "--set", "\x1b]0;x\n\u202e=1"], r"\x1b]0;x\n\u202e"),
    (["power", STUDY, "\x1b[31m"], r"\x1b[31m"),
    (["new", "--out", "never", "--set", "txtICC(2)=0.1"], 'txtICC(2) has no effect in this study; add --set "ICC Metric=1".'),
    (["power", STUDY, "--set", "txtMRange(2)=1"], 'add --set "ICC Metric=2".'),
    (["power", STUDY, "--set", "txtTauSq(3)=1", "--set", "Tau-sq Metric=3"], 'add --set "Tau-sq Metric=1".'),
    (["mdes", STUDY, "--set", "txtRR=2"], "add --set DataType=2 --set BinaryType=2."),
    (["optimal", STUDY, "--set", "txtNT(3)=20"], "set txtNB(3)."),
    (["power", STUDY, "--set", "txtCostB(2)=20"], "set txtCostT(2) and txtCostC(2)."),
    (["power", STUDY, "--set", "txtQ(4)=1"], "add --set NumLevels=4."),
    (["power", STUDY, "--set", "txtICC(1)=0.1"], "leave it out."),
    (["mdes", STUDY, "--power", "1"], "--power takes a power from 0.01 to 0.999, not 1."),
    (["power", STUDY, "--colour"], "--colour"),
    (["power"], "STUDY"),
    (["paint"], ""),
    ([], "subcommand"),
]


def check_failures(folder):
    for arguments, words in WRONG_USE:
        code, _, err = run(*arguments)
        assert code == 2 and words in err, (arguments, code, err)
    broken = Path(folder) / "broken.Lorvane"
    broken.write_text("not,a,study\n")
    for arguments, words in [(["power", "/no/such.Lorvane"], "/no/such.Lorvane"), (["power", folder], "folder"),
                             (["scenarios", str(broken)], "row 1"), (["new", "--out", "/no/such/folder/x"], "/no/such")]:
        code, out, err = run(*arguments)
        assert code == 3 and words in err and len(err.splitlines()) == 1 and out == "", (arguments, code, err)


def check_paths_that_lead_nowhere(folder):
    """An empty path, and a relative one in a folder that is gone, are told in a sentence."""
    code, out, err = run("power", "")
    assert code == 3 and out == "" and len(err.splitlines()) == 1 and "no name" in err, (code, err)
    gone = Path(folder) / "gone"
    gone.mkdir()
    script = 'rmdir "$1"; shift; exec "$@"'
    for arguments, code in ((["power", "study.Lorvane"], 3), (["new", "--out", "study.Lorvane"], 3), (["drive"], 0)):
        gone.mkdir(exist_ok=True)
        done = subprocess.run(["sh", "-c", script, "sh", str(gone), PROGRAM, *arguments], cwd=gone, text=True,
                              input="open\nopen x\nsave x\nopen \"\"\nget txtd\n", capture_output=True, timeout=60)
        assert done.returncode == code and len(done.stderr.splitlines()) == (code != 0), (arguments, done)
    answers = [json.loads(line) for line in done.stdout.splitlines()]
    assert [list(answer) for answer in answers] == [["error"]] * 4 + [["txtd"]], answers
    assert answers[0] == answers[3] == {"error": "A path is missing."} and '"x"' in answers[1]["error"], answers


def check_output(folder):
    """An answer that cannot be written is an error of its own, whatever the command."""
    commands = [["--help"], ["--version"], ["power", STUDY], ["power", STUDY, "--json"], ["optimal", STUDY],
                ["mdes", STUDY], ["scenarios", STUDY], ["new", "--force", "--out", str(Path(folder) / "x.Lorvane")],
                ["drive", STUDY], ["power", STUDY, "--set", "txtNB(3)=1"]]
    for arguments in commands:
        read, write = os.pipe()
        os.close(read)
        for out in (os.open("/dev/full", os.O_WRONLY), write):
            done = subprocess.run([PROGRAM, *arguments], input="get txtd\n" * 9, stdout=out, stderr=subprocess.PIPE,
                                  text=True, timeout=60)
            os.close(out)
            told = done.stderr.splitlines()
            assert done.returncode == 3 and told[-1].startswith("The answer cannot be written"), (arguments, done)
    endless = subprocess.Popen([PROGRAM, "drive"], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                               stderr=subprocess.PIPE, text=True, bufsize=1)
    endless.stdout.close()
    endless.stdin.write("get txtd\n")
    assert endless.wait(timeout=20) == 3, "a session ends with its reader, though more commands may come"
    endless.stdin.close()
    endless.stderr.close()


def check_help():
    for arguments in [["--help"], ["power", "--help"], ["new", "--help"], ["scenarios", "--help"], ["drive", "--help"],
                      ["optimal", "--help"], ["mdes", "--help"]]:
        code, out, _ = run(*arguments)
        assert code == 0 and "Example:" in out, out
    assert run("--version")[1].startswith("Lorvane ")


def documented_commands(document):
    """The commands of a document's blocks, "$ lorvane-cli ...", each with its input, the lines from <<END to END, and
    the output that stands below."""
    for block in document.split("```")[1::2]:
        for step in block.replace("\\\n", "").split("\n$ ")[1:]:
            command, _, output = step.partition("\n")
            text = ""
            if command.endswith(" <<END"):
                command = command.removesuffix(" <<END")
                text, _, output = output.partition("\nEND\n")
            yield shlex.split(command), text, output.strip()


def documented_rows(document):
    """The rows of tables whose first head is a command, and first cell its further options, with the answers that the
    other columns tell."""
    for table in re.findall(r"^\| `lorvane-cli .*\n(?:\|.*\n)+", document, re.MULTILINE):
        head, _, *rows = ([cell.strip() for cell in row.strip("|").split("|")] for row in table.splitlines())
        for options, *cells in rows:
            answers = {name: cell for name, cell in zip(head[1:], cells) if name in ANSWERS}
            assert answers, f"nothing is told of {options}"
            yield shlex.split(head[0].strip("`") + " " + options.strip("`")), answers


def check_document(document, folder):
    (Path(folder) / "assets").symlink_to(EXAMPLES.parent)
    commands = list(documented_commands(document))
    assert commands
    for (program, *arguments), text, output in commands:
        _, out, err = run(*arguments, text=text, folder=folder)
        assert program.endswith("lorvane-cli") and (out + err).strip() == output, (arguments, out + err)
    for (_, *arguments), answers in documented_rows(document):
        lines = run(*arguments, folder=folder)[1].splitlines()
        assert all(f"{name:<20}{answer}" in lines for name, answer in answers.items()), (arguments, answers, lines)


def check_documents():
    assert DOCUMENTS
    for document in DOCUMENTS:
        with tempfile.TemporaryDirectory() as folder:
            try:
                check_document(document.read_text(encoding="utf-8"), folder)
            except AssertionError as problem:
                raise AssertionError(f"{document}: {problem}") from problem


def main():
    check_documents()
    with tempfile.TemporaryDirectory() as folder:
        check_answers(folder)
        check_failures(folder)
        check_optimal(folder)
        check_paths_that_lead_nowhere(folder)
        check_output(folder)
        check_graph(folder)
        check_report(folder)
    check_mdes()
    check_examples()
    check_long_lines()
    check_new_study()
    check_no_answer()
    check_help()


main()
