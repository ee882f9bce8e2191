// The start screen and its parts: choices, files, mark and drawing.
#include <QAbstractItemView>
#include <QIcon>
#include <QPushButton>
#include <QScrollBar>

#include "desktop/kit/choice_card.h"
#include "desktop/kit/file_list.h"
#include "desktop/kit/logo.h"
#include "desktop/kit/start_page.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/trial_drawing.h"
#include "kit_bench.h"

namespace lorvane::desktop {
namespace {

std::vector<FileEntry> files(int count) {
    std::vector<FileEntry> result;
    for (int i = 0; i < count; ++i)
        result.push_back({QStringLiteral("Study %1").arg(i), QStringLiteral("~/Studies/%1").arg(i), i == 1});
    return result;
}

class FileLists : public KitBench {
protected:
    void SetUp() override {
        list.setGeometry(0, 0, 344, 280);
        list.setTexts("Recent files", "More files ...");
        list.setEntries(files(3));
        KitBench::SetUp();
        list.setFocus();
    }

    QRect place(int file) { return view().visualRect(view().model()->index(file - FileList::More, 0)); }
    QAbstractItemView& view() { return *list.findChild<QAbstractItemView*>(); }
    void moveTo(int file) { QTest::mouseMove(view().viewport(), place(file).center()); }
    QImage picture(int file) { return view().viewport()->grab(place(file)).toImage(); }

    FileList list{&window};
    QSignalSpy changes{&list, &FileList::currentChanged};
    QSignalSpy activations{&list, &FileList::activated};
};

TEST_F(FileLists, GoWithThePointerAndTheKeys) {
    EXPECT_EQ(list.current(), FileList::More);
    moveTo(2);
    EXPECT_EQ(list.current(), 2);
    QTest::keyClick(&view(), Qt::Key_Up);
    EXPECT_EQ(list.current(), 1);
    QTest::mouseMove(view().viewport(), place(2).center() + QPoint(5, 0));
    EXPECT_EQ(list.current(), 2) << "moved within the row that it already was over";
    QTest::keyClick(&view(), Qt::Key_Home);
    EXPECT_EQ(list.current(), FileList::More);
    EXPECT_EQ(changes, (QList<QVariantList>{{2}, {1}, {2}, {FileList::More}}));
    QTest::keyClick(&view(), Qt::Key_Return);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, place(1).center());
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, place(1).center());
    EXPECT_EQ(activations, (QList<QVariantList>{{FileList::More}, {1}}))
        << "one missing, chosen all the same";
}

TEST_F(FileLists, KeepTheCurrentNumberWithoutASignal) {
    list.setCurrent(2);
    list.setEntries(files(20));
    EXPECT_EQ(list.current(), 2);
    list.setCurrent(19);
    EXPECT_LE(place(19).bottom(), view().viewport()->height()) << "in view";
    list.setEntries(files(2));
    EXPECT_EQ(list.current(), FileList::More);
    EXPECT_TRUE(changes.isEmpty());
}

TEST_F(FileLists, DoNotRunAwayUnderThePointer) {
    list.setEntries(files(20));
    const int cut = view().indexAt(QPoint(50, view().viewport()->height() - 2)).row() + FileList::More;
    ASSERT_GT(place(cut).bottom(), view().viewport()->height()) << "a row that is partly seen";
    QTest::mouseMove(view().viewport(), place(cut).topLeft() + QPoint(50, 3));
    EXPECT_EQ(list.current(), cut);
    EXPECT_EQ(view().verticalScrollBar()->value(), 0);
}

TEST_F(FileLists, ShowWhatIsMissingQuietAndWhatIsCurrentOnItsPlate) {
    const auto inked = [&](int file, Role role) { return pixels(picture(file), colour(role)); };
    inBothThemes([&] {
        list.setCurrent(FileList::More);
        EXPECT_GT(inked(0, Role::Text), 5);
        EXPECT_EQ(inked(1, Role::Text), 0);
        EXPECT_GT(inked(1, Role::Quiet), 5);
        EXPECT_GT(inked(1, Role::Line), 250) << "the line to the next row";
        list.setCurrent(2);
        EXPECT_EQ(inked(1, Role::Line), 0) << "no line at the plate";
        EXPECT_EQ(inked(1, Role::SelectedRow), 0);
        EXPECT_GT(inked(2, Role::SelectedRow), 300 * 30);
    });
}

class StartPages : public KitBench {
protected:
    void SetUp() override {
        page.setQuestion("What now?");
        page.setChoices({Icon::New, "New", "Two levels"}, {Icon::Open, "Open", "A file"});
        page.setButtons("OK", "Cancel");
        page.setFiles("Recent files", "More files ...", files(3));
        window.resize(page.size());
        KitBench::SetUp();
    }

    ChoiceCard& card(int choice) { return *page.findChildren<ChoiceCard*>().at(choice - 1); }
    FileList& list() { return *page.findChild<FileList*>(); }
    TrialDrawing& drawing() { return *page.findChild<TrialDrawing*>(); }

    StartPage page{&window};
    QSignalSpy choices{&page, &StartPage::choiceChosen};
    QSignalSpy chosenFiles{&page, &StartPage::fileChosen};
    QSignalSpy accepted{&page, &StartPage::accepted};
    QSignalSpy cancelled{&page, &StartPage::cancelled};
};

TEST_F(StartPages, ChooseByKeysAndAnywhereOnACard) {
    EXPECT_TRUE(drawing().isVisible() && !list().isVisible());
    page.setFocus();
    EXPECT_TRUE(card(1).hasFocus());
    QTest::keyClick(&card(1), Qt::Key_Down);
    EXPECT_TRUE(card(2).hasFocus());
    EXPECT_EQ(page.choice(), 2);
    EXPECT_TRUE(!drawing().isVisible() && list().isVisible());
    QTest::keyClick(&card(2), Qt::Key_Up);
    EXPECT_EQ(page.choice(), 1);
    QTest::mouseClick(&card(2), Qt::LeftButton, {}, card(2).rect().bottomRight() - QPoint(40, 5));
    EXPECT_EQ(page.choice(), 2);
    EXPECT_EQ(choices.count(), 3);
    page.setChoice(1);
    EXPECT_TRUE(drawing().isVisible() && !card(2).isChecked());
    EXPECT_EQ(choices.count(), 3) << "not chosen by the user";
}

TEST_F(StartPages, ShowAndSpeakTheChoice) {
    inBothThemes([&] {
        for (const int choice : {1, 2}) {
            page.setChoice(choice);
            EXPECT_GT(pixels(painted(card(choice)), colour(Role::AccentTint)), 10000);
            EXPECT_EQ(pixels(painted(card(3 - choice)), colour(Role::AccentTint)), 0);
        }
    });
    EXPECT_EQ(spoken(card(1)), "New");
    EXPECT_EQ(spoken(card(1), QAccessible::Description), "Two levels");
    EXPECT_EQ(speaker(card(1)).role(), QAccessible::RadioButton);
    card(1).setFocus();
    const QImage before = painted(card(1));
    QTest::keyClick(&card(1), Qt::Key_Tab);
    card(1).setFocus();
    EXPECT_NE(painted(card(1)), before) << "the ring of the focus, for those who use keys";
}

TEST_F(StartPages, AcceptAndCancelByKeysAndButtons) {
    const QList<QPushButton*> buttons = page.findChildren<QPushButton*>();
    QTest::keyClick(&card(1), Qt::Key_Return);
    QTest::mouseClick(buttons.at(0), Qt::LeftButton);
    EXPECT_EQ(accepted.count(), 2);
    QTest::keyClick(&card(1), Qt::Key_Escape);
    QTest::mouseClick(buttons.at(1), Qt::LeftButton);
    QTest::keyClick(buttons.at(1), Qt::Key_Enter);
    EXPECT_EQ(cancelled.count(), 3);
    EXPECT_EQ(accepted.count(), 2) << "Enter belongs to the button with the focus";
    page.setChoice(2);
    page.setCurrentFile(0);
    page.focusFiles();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(chosenFiles, QList<QVariantList>{{1}});
    EXPECT_EQ(accepted.count(), 3);
}

TEST_F(StartPages, DrawBothArmsAndTheMark) {
    drawing().resize(344, 412);
    const QImage image = painted(drawing());
    drawing().resize(165, 121);
    EXPECT_GT(pixels(painted(drawing())), pixels(image) / 6) << "smaller, not cut";
    Logo logo;
    inBothThemes([&] {
        for (const Role role : {Role::Treated, Role::Control})
            EXPECT_GT(pixels(painted(logo), colour(role)), 3);
    });
}

}  // namespace
}  // namespace lorvane::desktop
