// From an item and a level to title and paragraphs.
#include "guidance/detail_texts.h"

#include "guidance/detail_subjects.h"

namespace lorvane {

namespace {

constexpr const char* aboutRows = "Click on a specific row to get details for that row.";

struct ItemRow {
    DetailItem item;
    const DetailSubject& (*subject)();
};

constexpr ItemRow itemRows[] = {{DetailItem::design, designDetails},
                                {DetailItem::levels, levelDetails},
                                {DetailItem::units, unitDetails},
                                {DetailItem::icc, iccDetails},
                                {DetailItem::span, spanDetails},
                                {DetailItem::tauSq, tauSqDetails},
                                {DetailItem::effects, effectSpanDetails},
                                {DetailItem::model, modelDetails},
                                {DetailItem::covariates, covariateDetails},
                                {DetailItem::costs, costDetails},
                                {DetailItem::effect, GetTextES}};

const DetailSubject* subjectOf(DetailItem item) {
    for (const ItemRow& row : itemRows) {
        if (row.item == item)
            return &row.subject();
    }
    return nullptr;
}

// Sentences end with a blank where others may follow.
void add(std::vector<Paragraph>& paragraphs, Paragraph paragraph) {
    if (plainText(paragraph).empty())
        return;
    std::string& last = paragraph.back().text;
    if (last.ends_with(' '))
        last.pop_back();
    paragraphs.push_back(std::move(paragraph));
}

DetailText columnText(const DetailSubject& subject, const StudyFacts& facts) {
    DetailText text{plainText(told(subject.columnTitle, facts, 0)), {}};
    for (const DetailBlock& block : subject.column) {
        for (const int level : levelsOf(block.levels, facts.study()))
            add(text.paragraphs, told(block.sentences, facts, level));
    }
    return text;
}

DetailText rowText(const DetailSubject& subject, const StudyFacts& facts, int level) {
    DetailText text{plainText(told(subject.rowTitle, facts, level)), {}};
    for (const std::vector<Sentence>& sentences : subject.row)
        add(text.paragraphs, told(sentences, facts, level));
    return text;
}

}  // namespace

std::optional<DetailText> detailText(const SessionState& state, DetailItem item, int level) {
    const DetailSubject* subject = subjectOf(item);
    if (subject == nullptr)
        return std::nullopt;
    const StudyFacts facts{state};
    if (level != 0 && subject->tabs != DetailTabs::none)
        return rowText(*subject, facts, level);
    DetailText text = columnText(*subject, facts);
    if (!detailLevels(state.study, item).empty())
        text.paragraphs.push_back(markedText(aboutRows));
    return text;
}

std::vector<int> detailLevels(const Study& study, DetailItem item) {
    const DetailSubject* subject = subjectOf(item);
    if (subject == nullptr || subject->tabs == DetailTabs::none)
        return {};
    return levelsOf(subject->tabs == DetailTabs::all ? Levels::fromTop : Levels::blockedOnes, study);
}

}  // namespace lorvane
