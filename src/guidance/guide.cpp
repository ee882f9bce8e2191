// The interactive guide.
#include "guidance/guide.h"

#include <stdexcept>
#include <utility>

#include "base/names.h"
#include "guidance/guide_texts.h"
#include "guidance/guide_words.h"
#include "screen/questions.h"

namespace lorvane {

namespace {

constexpr const char* application = "Lorvane";
constexpr const char* section = "Guide";
constexpr const char* openKey = "Open";
constexpr const char* sizeKey = "TextSize";

// The entry for a frame that the study has no longer; its number is that of no frame.
constexpr int goneFrame = 400;

constexpr int showAgain = 4;

GuideEntries readEntries() {
    GuideEntries entries;
    for (const std::string_view text : guideTexts())
        readGuide(text, entries);
    return entries;
}

GuideTextSize sizeOf(const std::string& word) {
    if (word == "0")
        return GuideTextSize::small;
    return word == "2" ? GuideTextSize::large : GuideTextSize::medium;
}

// The options have the numbers of DataType, DType and BinaryType.
const char* captionOf(DataTypes type) { return type == DataTypes::means ? "Means" : "Binary"; }

void write(Option& option, const char* caption, bool visible, bool value) {
    option.Caption = caption;
    option.Visible = visible;
    option.Value = value;
}

}  // namespace

Guide::Guide(Design& design, Details& details, const Manuals& manuals, SettingsStore& settings,
             GuideReach reach)
    : design_(design), details_(details), manuals_(manuals), settings_(settings), reach_(std::move(reach)),
      entries_(readEntries()), textSize_(sizeOf(settings.GetSetting(application, section, sizeKey, "1"))) {
    design_.setGuideWanted(settings.GetSetting(application, section, openKey, "1") != "0");
    syncFiles();
    syncButtons();
    syncOptions();
}

// Moving ---------------------------------------------------------------------------------------------------

void Guide::dotips(int delta) {
    if (delta == showAgain)
        delta = 0;
    go(CurrentTip_, delta);
}

void Guide::go(int frame, int delta) {
    CurrentTip_ = GetTip(frame, delta, framesOf(design_.study()));
    syncFiles();
    syncButtons();
    syncOptions();
    steer();
}

// The frames on the wizard open it, and the guide closes what it has opened when it goes on. A study that the
// search cannot run for has no wizard.
void Guide::steer() {
    const bool wanted = isOpen() && steersWizard(CurrentTip_);
    if (wanted && !design_.isOpen(WindowId::frmOptimal) && design_.study().result.xValid) {
        openedWizard_ = true;
        reach_.run("gfrmOptimal");
    }
    if (!wanted && std::exchange(openedWizard_, false))
        reach_.close("frmOptimal");
}

void Guide::setOpen(bool open) {
    design_.SynchForms(WindowId::frmTips, open ? WindowAction::open : WindowAction::withdrawForGood);
    settings_.SaveSetting(application, section, openKey, open ? "1" : "0");
    design_.setGuideWanted(open);
    dotips(0);
}

void Guide::toggle() { setOpen(!isOpen()); }

void Guide::showIfOpen(int frame) {
    if (isOpen())
        go(frame, 0);
}

void Guide::setTextSize(GuideTextSize size) {
    textSize_ = size;
    settings_.SaveSetting(application, section, sizeKey, std::to_string(static_cast<int>(size)));
}

// The wizard is steered by moves alone: who closes it by hand has done so.
void Guide::follow(const Changed&) {
    CurrentTip_ = GetTip(CurrentTip_, 0, framesOf(design_.study()));
    syncButtons();
    syncOptions();
}

// What is shown --------------------------------------------------------------------------------------------

bool Guide::exists() const { return framesOf(design_.study()).test(static_cast<std::size_t>(CurrentTip_)); }

const GuideEntry& Guide::entry() const {
    const auto found = entries_.find(exists() ? CurrentTip_ : goneFrame);
    if (found == entries_.end())
        throw std::logic_error("The guide has no text for frame " + std::to_string(CurrentTip_) + ".");
    return found->second;
}

std::string Guide::title() const { return titleOf(entry(), {design_.session().state(), design_.screen()}); }

std::vector<Paragraph> Guide::text() const {
    return textOf(entry(), {design_.session().state(), design_.screen()});
}

GuideTarget Guide::target() const { return targetOf(entry().at, design_.screen()); }

std::string Guide::menu() const { return menuOf(entry().menu, design_.screen()); }

std::string Guide::position() const {
    const GuideFrames frames = framesOf(design_.study());
    int place = 0, count = 0;
    for (int frame = part().first; frame <= part().last; ++frame) {
        if (frames.test(static_cast<std::size_t>(frame))) {
            ++count;
            place += frame <= CurrentTip_ ? 1 : 0;
        }
    }
    return std::to_string(place) + " of " + std::to_string(count);
}

std::string Guide::sectionCaption(int frame) const {
    const GuidePart& part = partOf(frame);
    const std::string title = titleOf(entries_.at(frame), {design_.session().state(), design_.screen()});
    return part.caption.empty() ? title : std::string(part.caption) + ": " + title;
}

GuideFrame Guide::frame() const {
    GuideFrame shown{CurrentTip_, std::string(part().caption), title(), {}, target().name, menu(), {}};
    for (const Paragraph& paragraph : text())
        shown.text.push_back(plainText(paragraph));
    const GuideFrames frames = framesOf(design_.study());
    for (int frame = 0; frame <= lastGuideFrame; ++frame) {
        if (frames.test(static_cast<std::size_t>(frame)))
            shown.frames.push_back(frame);
    }
    return shown;
}

// Asks the disk, so only a move does it: an edit stays in its part.
void Guide::syncFiles() {
    cmdPDF_.Visible = manuals_.has(part().document);
    cmdVideo_.Visible = manuals_.hasFilm(part().caption);
}

void Guide::syncButtons() {
    cmdBack_.Enabled = CurrentTip_ > 0;
    cmdNext_.Enabled = CurrentTip_ < lastGuideFrame;
    cmdDetails_.Visible = !target().column.empty();
    cmdMenu_.Visible = !menu().empty();
}

void Guide::syncOptions() {
    const Study& s = design_.study();
    const bool there = CurrentTip_ == outcomeFrame;
    const auto writeData = [&](DataTypes type) {
        write(optdatatype_(static_cast<int>(type)), captionOf(type), there, s.DataType == type);
    };
    writeData(DataTypes::means);
    writeData(DataTypes::binary);
    const bool means = there && s.isMeans();
    write(optDType_(static_cast<int>(DTypes::within)), "d (within)", means, s.DType == DTypes::within);
    write(optDType_(static_cast<int>(DTypes::total)), "d (total)", means, s.DType == DTypes::total);
    const auto writeBinary = [&](BinaryTypes type, const char* caption) {
        write(optBinaryType_(static_cast<int>(type)), caption, there && s.isBinary(), s.BinaryType == type);
    };
    writeBinary(BinaryTypes::oddsRatio, "Odds ratio");
    writeBinary(BinaryTypes::riskDifference, "Risk difference");
    optBinaryType_(static_cast<int>(BinaryTypes::riskRatio)).Visible = false;
}

// Names and events -----------------------------------------------------------------------------------------

void Guide::registerNames(ControlRegistry& registry) const {
    registry.add("CurrentTip", &CurrentTip_);
    registry.add("frmTips.pnlCaption", [this]() -> ControlValue { return std::string(part().caption); });
    registry.add("frmTips.pnlTitle", [this]() -> ControlValue { return title(); });
    registry.add("frmTips.pnlText", [this]() -> ControlValue { return plainText(text()); });
    registry.add("frmTips.pnlPosition", [this]() -> ControlValue { return position(); });
    registry.add("frmTips.TextSize", [this]() -> ControlValue { return static_cast<double>(textSize_); });
    const std::pair<const char*, const Button*> buttons[] = {
        {"frmTips.frmClusterWizbutton(0)", &cmdSections_},
        {"frmTips.frmClusterWizbutton(2)", &cmdBack_},
        {"frmTips.frmClusterWizbutton(3)", &cmdNext_},
        {"frmTips.cmdPDF", &cmdPDF_},
        {"frmTips.cmdVideo", &cmdVideo_},
        {"frmTips.cmdDetails", &cmdDetails_},
        {"frmTips.cmdMenu", &cmdMenu_}};
    for (const auto& [name, button] : buttons)
        registry.add(name, *button);
    for (const int type : {1, 2}) {
        registry.add(indexedName("frmTips.optdatatype", type), optdatatype_(type));
        registry.add(indexedName("frmTips.optDType", type), optDType_(type));
    }
    for (const int type : {1, 3})
        registry.add(indexedName("frmTips.optBinaryType", type), optBinaryType_(type));
}

// As the menu does it; what is chosen already asks nothing.
void Guide::changeMetric(const std::function<void(EffectMetric&)>& change) {
    const Study& s = design_.study();
    EffectMetric metric{s.DataType, s.DType, s.BinaryType};
    change(metric);
    if (metric != EffectMetric{s.DataType, s.DType, s.BinaryType})
        askAndChangeDataType(design_, metric);
}

void Guide::registerEvents(EventRegistry& events) {
    events.onClick("frmTips.frmClusterWizbutton(2)", [this] { dotips(-1); });
    events.onClick("frmTips.frmClusterWizbutton(3)", [this] { dotips(1); });
    int entry = 0;
    for (const int frame : guideSections())
        events.onClick(indexedName("frmTips.Section", ++entry), [this, frame] { go(frame, 0); });
    events.onClick("frmTips.cmdPDF", [this] { manuals_.ShowdPDF(part().document); });
    events.onClick("frmTips.cmdVideo", [this] { manuals_.showFilm(part().caption); });
    events.onClick("frmTips.cmdDetails", [this] { details_.openColumn(target().column); });
    const auto choose = [this, &events](const std::string& control, auto change) {
        events.onClick("frmTips." + control, [this, change] { changeMetric(change); });
    };
    for (const int type : {1, 2}) {
        choose(indexedName("optdatatype", type),
               [type](EffectMetric& metric) { metric.data = static_cast<DataTypes>(type); });
        choose(indexedName("optDType", type), [type](EffectMetric& metric) {
            metric.data = DataTypes::means;
            metric.d = static_cast<DTypes>(type);
        });
    }
    for (const int type : {1, 3}) {
        choose(indexedName("optBinaryType", type), [type](EffectMetric& metric) {
            metric.data = DataTypes::binary;
            metric.binary = static_cast<BinaryTypes>(type);
        });
    }
    events.onClose("frmTips", [this] { setOpen(false); });
}

}  // namespace lorvane
