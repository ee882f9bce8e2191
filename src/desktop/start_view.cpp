// The start screen over the main window.
#include "desktop/start_view.h"

#include <QDir>
#include <QVBoxLayout>

#include "base/names.h"
#include "desktop/kit/start_page.h"

namespace lorvane::desktop {

namespace {

constexpr const char* listName = "frmStart.flex";
constexpr std::size_t moreRow = 1;  // row of the program's list that stands for other files

std::size_t rowOf(int file) { return moreRow + 1 + static_cast<std::size_t>(file); }

// The user's own folder is written short.
QString shortPath(const QString& path) {
    const QString home = QDir::homePath() + QLatin1Char('/');
    return path.startsWith(home) ? QLatin1String("~/") + path.mid(home.size()) : path;
}

std::vector<FileEntry> filesOf(const StartScreen& model) {
    std::vector<FileEntry> files;
    for (std::size_t row = moreRow + 1; row < model.flex().rows.size(); ++row) {
        const Grid::Row& cells = model.flex().rows[row];
        files.push_back({shownText(cells[StartScreen::textColumn]),
                         shortPath(shownText(cells[StartScreen::pathColumn])), model.isMissing(row)});
    }
    return files;
}

}  // namespace

StartView::StartView(Desk& desk, ToolPanel* panel)
    : PanelView(desk, panel, "frmStart"), page_(new StartPage) {
    panel->setWindowTitle(QStringLiteral("Lorvane"));
    panel->setAttribute(Qt::WA_ShowWithoutActivating, false);
    panel->content()->setContentsMargins(0, 0, 0, 0);
    panel->content()->addWidget(page_);
    page_->setTitle(panel->windowTitle(), tr("Planning of cluster-randomized trials"));
    page_->setQuestion(tr("What would you like to do?"));
    page_->setChoices({Icon::New, tr("Start a new project"), tr("Two levels, ready to edit")},
                      {Icon::Open, tr("Open an existing file"), tr("A recent study or another file")});
    page_->setButtons(tr("OK"), tr("Cancel"));
    connect(page_, &StartPage::choiceChosen, this,
            [this](int choice) { desk_.click(indexedName("frmStart.optStart", choice)); });
    connect(page_, &StartPage::fileChosen, this,
            [this](int file) { desk_.select(listName, {file == FileList::More ? moreRow : rowOf(file)}); });
    connect(page_, &StartPage::accepted, this, [this] { desk_.click("frmStart.cmdOK(0)"); });
    connect(page_, &StartPage::cancelled, this, [this] { desk_.click("frmStart.cmdOK(1)"); });
}

bool StartView::isOpen() const {
    return desk_.design().windows().state(WindowId::frmStart) == WindowStates::open;
}

void StartView::sync() {
    const StartScreen& model = desk_.application().startScreen();
    const Grid& flex = model.flex();
    page_->setFiles(tr("Recent files"), shownText(flex.rows[moreRow][StartScreen::textColumn]),
                    filesOf(model));
    page_->setChoice(model.StartChoice());
    if (!flex.selected.empty())
        page_->setCurrentFile(static_cast<int>(flex.selected.front()) - static_cast<int>(rowOf(0)));
    const bool opened = isOpen() && !wasOpen_;
    wasOpen_ = isOpen();
    if (!opened)
        return;
    page_->setFocus();
}

}  // namespace lorvane::desktop
