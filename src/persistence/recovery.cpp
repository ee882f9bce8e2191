// Work that an earlier run has left unsaved.
#include "persistence/recovery.h"

#include "persistence/study_file.h"

namespace lorvane {

namespace {

constexpr const char* title = "Unsaved study";

std::vector<MessageButton> buttons() {
    return {{Answer::Yes, "Bring back"}, {Answer::No, "Discard"}, {Answer::Cancel, "Later"}};
}

std::string ownerOf(const LeftBehind& picture) {
    return picture.study.file.empty() ? "a new study" : "\"" + picture.study.file + "\"";
}

}  // namespace

// Why the picture cannot be brought back; empty when it can.
std::string Recovery::problemOf(const LeftBehind& picture) const {
    if (!picture.problem.empty())
        return picture.problem;
    try {
        readStudyText(picture.study.table, picture.place);
        return "";
    } catch (const FileProblem& problem) {
        return problem.what();
    }
}

Recovery::Choice Recovery::ask(const LeftBehind& picture) {
    const Answer answer = design_.ask(title,
                                      "Lorvane ended before the last changes of " + ownerOf(picture) +
                                          " were saved. Bring them back?",
                                      buttons());
    if (answer == Answer::Yes) {
        studies_.bringBack(picture);
        return Choice::done;
    }
    if (answer == Answer::No) {
        store_->drop();
        return Choice::next;
    }
    store_->leave();
    return Choice::later;
}

// A damaged picture makes way for the next one under a name that is told.
Recovery::Choice Recovery::askAboutDamaged(const LeftBehind& picture, const std::string& why) {
    const Answer answer = design_.ask(
        title,
        "Lorvane ended before the last changes of " + ownerOf(picture) +
            " were saved, and what it kept of them is damaged. Unless you discard it, it stays as " +
            picture.aside + ".\n\n" + why,
        buttons(), Answer::Cancel);
    if (answer == Answer::No) {
        store_->drop();
        return Choice::next;
    }
    store_->setAside();
    design_.tellStatus("What was kept of the last changes is damaged and stays as " + picture.aside + ".");
    return Choice::next;
}

bool Recovery::offer() {
    for (auto picture = store_ == nullptr ? std::nullopt : store_->takeLeftBehind(); picture;
         picture = store_->takeLeftBehind()) {
        const std::string why = problemOf(*picture);
        const Choice choice = why.empty() ? ask(*picture) : askAboutDamaged(*picture, why);
        if (choice != Choice::next)
            return choice == Choice::done;
    }
    return false;
}

}  // namespace lorvane
