// Saving and copying of a graph.
#include "graphs/graph_files.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <stdexcept>

#include "base/letter_case.h"
#include "base/rtf_text.h"
#include "base/utf8.h"

namespace lorvane {

namespace {

template <typename Format>
struct Ending {
    const char* ending;
    Format format;
};

constexpr Ending<PictureFormats> pictureEndings[] = {{".jpg", PictureFormats::jpg},
                                                     {".jpeg", PictureFormats::jpg},
                                                     {".png", PictureFormats::png},
                                                     {".svg", PictureFormats::svg},
                                                     {".pdf", PictureFormats::pdf}};
constexpr Ending<SheetFormats> sheetEndings[] = {
    {".xls", SheetFormats::xls}, {".xlsx", SheetFormats::xlsx}, {".csv", SheetFormats::csv}};

template <typename Format, std::size_t count>
std::optional<Format> formatOf(const Ending<Format> (&endings)[count], const std::string& path) {
    const std::string lower = lowerCased(path);
    const auto* found = std::find_if(std::begin(endings), std::end(endings),
                                     [&](const Ending<Format>& row) { return lower.ends_with(row.ending); });
    return found == std::end(endings) ? std::nullopt : std::optional(found->format);
}

FileDialog saveDialog(const char* title, const char* ending, std::vector<std::string> others = {}) {
    const std::string pattern = std::string("*") + ending;
    return {FileDialog::Kind::save, title, "(" + pattern + ")|" + pattern, ending, std::move(others)};
}

std::string savedIn(const std::string& path) { return "Saved in " + printable(path) + "."; }

constexpr const char* noPictures = "Pictures cannot be drawn here; use the program with its window.";
constexpr const char* noSheets = "Spreadsheets cannot be written here; use the program with its window.";
constexpr const char* otherPicture =
    "A picture ends in .jpg, .png, .svg or .pdf; choose a name with one of these endings.";
constexpr const char* otherTable =
    "A table ends in .xls, .xlsx or .csv; choose a name with one of these endings.";
constexpr const char* tableNotSaved =
    "File could not be saved.  It is probably being used by another program                ";

}  // namespace

std::optional<PictureFormats> pictureFormatOf(const std::string& path) {
    return formatOf(pictureEndings, path);
}

std::optional<SheetFormats> sheetFormatOf(const std::string& path) { return formatOf(sheetEndings, path); }

Answer GraphFiles::ask(const MessageBox& message) {
    const bool isOpen = design_.isOpen(WindowId::xPlot);
    if (isOpen)
        design_.SuspendForms(FormSet::graph);
    const Answer answer = design_.ask(message);
    if (isOpen)
        design_.RestoreForms(FormSet::graph);
    return answer;
}

// The table makes way for the dialog and comes back as it was.
std::optional<std::string> GraphFiles::choose(const FileDialog& dialog) {
    const bool isOpen = design_.isOpen(WindowId::frmTable);
    design_.SynchForms(WindowId::frmTable, WindowAction::withdraw);
    auto path = outside_.dialogs.choose(dialog);
    if (path && path->find('.', path->find_last_of('/') + 1) == std::string::npos)
        *path += dialog.defaultExtension;
    if (isOpen)
        design_.SynchForms(WindowId::frmTable, WindowAction::bringBack);
    return path;
}

// What cannot be made or written is told in a message, and in the status line with its reason.
template <typename Bytes>
std::string GraphFiles::save(const char* title, const std::string& path, Bytes bytes, const char* message) {
    try {
        outside_.files.replace(path, bytes());
    } catch (const FileProblem& problem) {
        ask(failureMessage(title, message == nullptr ? problem.what() : message));
        return problem.what();
    } catch (const std::runtime_error& problem) {
        ask(failureMessage(title, problem.what()));
        return problem.what();
    }
    return "";
}

std::string GraphFiles::SaveGraph(const ChartContent& chart, PictureSizes size) {
    const auto path = choose(saveDialog(
        "Save graph", ".jpg",
        {"Picture without loss (*.png)|*.png", "Drawing (*.svg)|*.svg", "Document (*.pdf)|*.pdf"}));
    if (!path)
        return "";
    const std::string problem = save("Save graph", *path, [&] {
        const auto format = pictureFormatOf(*path);
        if (!format)
            throw std::runtime_error(otherPicture);
        if (outside_.chart == nullptr)
            throw std::runtime_error(noPictures);
        return outside_.chart->picture(chart, *format, size);
    });
    return problem.empty() ? savedIn(*path) : problem;
}

std::string GraphFiles::copyGraph(const ChartContent& chart, PictureSizes size) {
    if (outside_.chart == nullptr)
        return noPictures;
    ClipboardContent content;
    content.png = outside_.chart->picture(chart, PictureFormats::png, size);
    outside_.clipboard.put(content);
    return "The graph has been copied.";
}

std::string GraphFiles::SaveTable(const Sheet& sheet, Then then) {
    const auto path = choose(
        saveDialog("Save table", ".xls", {"Workbook (*.xlsx)|*.xlsx", "Text with commas (*.csv)|*.csv"}));
    if (!path)
        return "";
    const auto bytes = [&] {
        const auto format = sheetFormatOf(*path);
        if (!format)
            throw std::runtime_error(otherTable);
        if (outside_.sheets == nullptr)
            throw std::runtime_error(noSheets);
        return outside_.sheets->write(sheet, *format);
    };
    const std::string problem = save("Save table", *path, bytes, tableNotSaved);
    if (!problem.empty())
        return problem;
    const bool opens = then == Then::open && outside_.shell != nullptr;
    if (opens && !outside_.shell->open(*path))
        return savedIn(*path) + " No program of this system opens it.";
    return savedIn(*path);
}

std::string GraphFiles::copyTable(const ClipboardContent& table) {
    outside_.clipboard.put(table);
    return "The table has been copied.";
}

// A name that exists is refused, and another one asked for.
std::optional<std::string> GraphFiles::GetFileNameRTF() {
    FileDialog dialog = saveDialog("Save header and footer", ".rtf");
    dialog.asksBeforeReplacing = false;
    for (;;) {
        const auto path = choose(dialog);
        if (!path || !outside_.files.exists(*path))
            return path;
        ask({"File exists   ", "That file already exists.  Please enter another file name    "});
    }
}

std::string GraphFiles::SaveHeader(const std::vector<std::string>& texts) {
    const auto path = GetFileNameRTF();
    if (!path)
        return "";
    const std::string problem = save("Save header and footer", *path, [&] { return rtfDocument(texts); });
    return problem.empty() ? savedIn(*path) : problem;
}

std::string GraphFiles::copyHeader(const std::vector<std::string>& texts) {
    ClipboardContent content;
    for (const std::string& text : texts)
        content.text += text + "\n";
    outside_.clipboard.put(content);
    return "Header and footer have been copied.";
}

}  // namespace lorvane
