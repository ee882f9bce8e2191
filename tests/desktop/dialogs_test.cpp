// The small dialogs as a hand and a reader of the screen meet them.
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

class Dialogs : public DesktopBench {
protected:
    QLineEdit& field(const char* name) {
        return *window.findChild<QLineEdit*>(QLatin1String(name), Qt::FindChildrenRecursively);
    }
    std::string typed(const char* name) { return field(name).text().toStdString(); }
    void open(const char* value, const char* firstText = "") {
        desk.openValue(value, firstText);
        settle();
    }
};

TEST_F(Dialogs, AValueBegunOnItsCellGoesOnInTheDialog) {
    open("txtNT(2)", "4");
    EXPECT_EQ(typed("frmValue.txtValue"), "4");
    type("2");
    key(Qt::Key_Return);
    EXPECT_EQ(study().txtNC(2), 42);
    open("txtModel(1)", "1");
    EXPECT_EQ(study().txtModel(1), 0) << "a choice is no number";
}

TEST_F(Dialogs, AnotherCellTakesAnOpenDialogOver) {
    open("txtNT(2)");
    type("17");
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, inside(cell("pnlNT(1)")));
    settle();
    EXPECT_EQ(typed("frmValue.txtValue"), "10");
    EXPECT_EQ(field("frmValue.txtValue").selectedText(), QStringLiteral("10"));
    EXPECT_TRUE(field("frmValue.txtValue").hasFocus());
    type("12");
    key(Qt::Key_Return);
    EXPECT_EQ(study().txtNT(2), 2) << "what was typed for another cell is dropped";
    EXPECT_EQ(study().txtNT(1), 12);
}

}  // namespace
}  // namespace lorvane::desktop
