"""Reads the includes of src/ and fails on any that breaks the order of the floors.

A folder includes only what MAY_INCLUDE allows, the widgets include widgets alone, no two modules include each
other, directly or round about, and below the edge nothing but the standard library comes from outside. A module is
x.h together with x.cpp.
"""

import re
import sys
from pathlib import Path

GROUND = {"base", "platform"}
ENGINE = GROUND | {"engine"}
VALIDATION = ENGINE | {"validation"}
SESSION = VALIDATION | {"session"}
SCREEN = SESSION | {"screen"}
CORE = SCREEN | {"persistence", "guidance", "search", "graphs", "reporting"}

MAY_INCLUDE = {
    "base": set(),
    "platform": {"base"},
    "numerics": {"platform"},
    "engine": GROUND,
    "validation": ENGINE,
    "session": VALIDATION,
    "screen": SESSION,
    "persistence": SCREEN,
    "guidance": SCREEN,
    "search": SCREEN,
    "graphs": SCREEN,
    "reporting": SCREEN,
    "app": CORE,
    "os": GROUND,
    "sheets": GROUND,
    "qt": GROUND,
    "cli": CORE | {"numerics", "app", "os", "sheets", "qt"},
    "desktop": CORE | {"numerics", "app", "os", "sheets", "qt"},
    "manual": GROUND | {"qt"},
}
# The distribution functions see one header of the platform alone.
NUMERICS_MAY_SEE = {"platform/distribution_library.h"}
# The widgets know nothing of ours but each other.
KIT = "desktop/kit/"

FOREIGN = {
    "os": re.compile(r"sys/file\.h|fcntl\.h|unistd\.h|sys/stat\.h"),
    "cli": re.compile(r"CLI/|nlohmann/"),
    "sheets": re.compile(r"xlsxwriter\.h"),
    "qt": re.compile(r"Q[A-Z]|qcustomplot\.h|qpdf/"),
    "desktop": re.compile(r"Q[A-Z]"),
    "manual": re.compile(r"Q[A-Z]"),
}
STANDARD = re.compile(r"c?[a-z_0-9]+$")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def includes(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        found = INCLUDE.match(line)
        if found:
            yield number, found.group(1) == "<", found.group(2)


def problem_with(own, is_foreign, name):
    folder = own.split("/")[0]
    if is_foreign:
        allowed = FOREIGN.get(folder)
        if STANDARD.match(name) or (allowed and allowed.match(name)):
            return None
        return f"{name} is not part of the standard library"
    target = name.split("/")[0]
    if folder == "numerics" and target == "platform" and name not in NUMERICS_MAY_SEE:
        return f"numerics/ may not see {name}"
    if own.startswith(KIT) and not name.startswith(KIT):
        return f"{KIT} may not include {name}"
    if target != folder and target not in MAY_INCLUDE[folder]:
        return f"{folder}/ may not include {target}/"
    return None


def module_of(name):
    return name.rsplit(".", 1)[0]


def find_cycle(graph):
    done, path = set(), []

    def visit(node):
        if node in path:
            return path[path.index(node):] + [node]
        if node in done:
            return None
        path.append(node)
        for following in sorted(graph.get(node, ())):
            cycle = visit(following)
            if cycle:
                return cycle
        path.pop()
        done.add(node)
        return None

    for start in graph:
        cycle = visit(start)
        if cycle:
            return cycle
    return None


def check_file(root, own, graph):
    problems, module = [], module_of(own)
    following = graph.setdefault(module, set())
    for number, is_foreign, name in includes(root / own):
        problem = problem_with(own, is_foreign, name)
        if problem:
            problems.append(f"{own}:{number}: {problem}")
        if is_foreign:
            continue
        following.update({module_of(name)} - {module})
        if not (root / name).is_file():
            problems.append(f"{own}:{number}: {name} does not exist")
    return problems


def check(root):
    problems, graph, files = [], {}, 0
    for path in sorted(root.rglob("*")):
        if path.suffix not in {".h", ".cpp"}:
            continue
        own = path.relative_to(root).as_posix()
        folder = own.split("/")[0]
        if folder in MAY_INCLUDE:
            files += 1
            problems += check_file(root, own, graph)
        else:
            problems.append(f"{own}: the folder {folder}/ has no floor")
    cycle = find_cycle(graph)
    if cycle:
        problems.append("modules include each other: " + " -> ".join(cycle))
    return problems, files


def main():
    problems, files = check(Path(sys.argv[1]))
    print("\n".join(problems))
    print(f"{files} files, {len(problems)} problems")
    return 1 if problems or files == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
