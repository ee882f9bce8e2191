// How the question about unsaved work is worded for a person.
#include "persistence/unsaved_words.h"

#include <algorithm>

namespace lorvane {

namespace {

constexpr std::size_t lengthOfDay = 10;  // "2026-11-23"

std::string counted(std::size_t number, const std::string& word) {
    return std::to_string(number) + " " + word + (number == 1 ? "" : "s");
}

// The time alone where it was today.
std::string sinceWords(const UnsavedWork& work) {
    if (work.since.empty())
        return "";
    const bool today = work.since.substr(0, lengthOfDay) == work.now.substr(0, lengthOfDay);
    return " since " + (today ? work.since.substr(lengthOfDay + 1) : work.since);
}

// What there is, and whether it is one thing. A scenario that was added is not told as a change too.
struct Counted {
    std::string words;
    bool isOne;
};

Counted countedWork(const UnsavedWork& work) {
    if (!work.steps)
        return {"The last changes", false};
    const std::size_t changes = *work.steps - std::min(*work.steps, work.scenarios);
    if (work.scenarios == 0)
        return {counted(changes, "change"), changes == 1};
    const std::string scenarios = counted(work.scenarios, "scenario");
    if (changes == 0)
        return {scenarios, work.scenarios == 1};
    return {counted(changes, "change") + " and " + scenarios, false};
}

}  // namespace

std::string fileStem(const std::string& path) {
    const std::string name = path.substr(path.find_last_of("/\\") + 1);
    return name.substr(0, name.find_last_of('.'));
}

std::string saveQuestion(const Session& session) {
    const std::string& file = session.currentFile();
    return "Save the changes to " + (file.empty() ? "this study" : "“" + fileStem(file) + "”") + "?";
}

std::string unsavedWords(const Session& session) {
    const UnsavedWork work = session.unsavedWork();
    const Counted counted = countedWork(work);
    return counted.words + sinceWords(work) + (counted.isOne ? " is " : " are ") +
           (session.currentFile().empty() ? "in no file." : "not in the file.");
}

}  // namespace lorvane
