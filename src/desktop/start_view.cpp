// The start screen over the main window.
#include "desktop/start_view.h"

#include <QDir>
#include <QVBoxLayout>

#include "base/names.h"
#include "desktop/kit/notice_card.h"
#include "desktop/kit/start_page.h"

namespace lorvane::desktop {

namespace {

constexpr const char* listName = "frmStart.flex";
constexpr std::size_t firstFile = StartScreen::moreRow + 1;

std::size_t rowOf(int file) { return firstFile + static_cast<std::size_t>(file); }

// The user's own folder is written short.
QString shortPath(const QString& path) {
    const QString home = QDir::homePath() + QLatin1Char('/');
    return path.startsWith(home) ? QLatin1String("~/") + path.mid(home.size()) : path;
}

std::vector<FileEntry> filesOf(const StartScreen& model) {
    std::vector<FileEntry> files;
    for (std::size_t row = firstFile; row < model.flex().rows.size(); ++row) {
        const Grid::Row& cells = model.flex().rows[row];
        files.push_back({shownText(cells[StartScreen::textColumn]),
                         shortPath(shownText(cells[StartScreen::pathColumn])), model.isMissing(row)});
    }
    return files;
}

}  // namespace

StartView::StartView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, "frmStart"), page_(new StartPage), notice_(new NoticeCard(page_)) {
    panel->setWindowTitle(shownText(windowTitle(WindowId::frmStart)));
    panel->setAttribute(Qt::WA_ShowWithoutActivating, false);
    panel->content()->setContentsMargins(0, 0, 0, 0);
    panel->content()->addWidget(page_);
    addTexts();
    connect(page_, &StartPage::choiceChosen, this,
            [this](int choice) { desk_.click(indexedName("frmStart.optStart", choice)); });
    connect(page_, &StartPage::fileChosen, this, [this](int file) {
        desk_.select(listName, {file == FileList::More ? StartScreen::moreRow : rowOf(file)});
    });
    connect(notice_, &NoticeCard::closeRequested, this, [this] { desk_.click("cmdNotice"); });
    connect(page_, &StartPage::accepted, this, [this] { desk_.click("frmStart.cmdOK(0)"); });
    connect(page_, &StartPage::cancelled, this, [this] { desk_.click("frmStart.cmdOK(1)"); });
}

void StartView::addTexts() {
    const StartScreen& model = desk_.application().startScreen();
    const auto choice = [&](Icon icon, int number) {
        return Choice{icon, shownText(model.optStart(number).Caption),
                      shownText(model.pnlChoice(number).Caption)};
    };
    page_->setTitle(shownText(model.pnlName().Caption), shownText(model.pnlSense().Caption));
    page_->setQuestion(shownText(model.pnlQuestion().Caption));
    page_->setChoices(choice(Icon::New, StartChoices::newProject),
                      choice(Icon::Open, StartChoices::existingFile));
    page_->setButtons(shownText(model.cmdOK(0).Caption), shownText(model.cmdOK(1).Caption));
}

bool StartView::isOpen() const { return desk_.design().isOpen(WindowId::frmStart); }

void StartView::sync() {
    const StartScreen& model = desk_.application().startScreen();
    const Grid& flex = model.flex();
    page_->setFiles(shownText(model.pnlFiles().Caption),
                    shownText(flex.rows[StartScreen::moreRow][StartScreen::textColumn]), filesOf(model));
    page_->setChoice(model.StartChoice());
    const MainScreen& screen = desk_.design().screen();
    notice_->setNotice(shownText(screen.pnlNoticeTitle.Caption), shownText(screen.pnlNotice.Caption),
                       shownText(screen.cmdNotice.Caption));
    notice_->setVisible(screen.pnlNotice.Visible);
    if (!flex.selected.empty())
        page_->setCurrentFile(static_cast<int>(flex.selected.front()) - static_cast<int>(rowOf(0)));
    const bool opened = isOpen() && !wasOpen_;
    wasOpen_ = isOpen();
    if (!opened)
        return;
    page_->setFocus();
}

}  // namespace lorvane::desktop
