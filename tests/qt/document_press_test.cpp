// Documents as files, as pictures and on paper. The press makes its application itself but where it prints.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include "qt/qt_document_press.h"
#include "sample_document.h"

namespace lorvane {
namespace {

QString answerOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is missing";
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString textOf(const QString& path) { return answerOf("pdftotext", {"-raw", path, "-"}).simplified(); }

TEST(DocumentPress, WritesFilesWithTextFontsAndBookmarks) {
    Document document = sampleDocument("B\xC3\xA4nke");
    document.page.width = 210 / 25.4;
    document.page.height = 297 / 25.4;
    const QTemporaryDir folder;
    const QString path = folder.filePath("document.pdf");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(QtDocumentPress().pdf(document)));
    file.close();
    EXPECT_LT(file.size(), 200'000);

    const QString text = textOf(path);
    for (const char* words :
         {"Executive summary Null hypothesis 1 One goal", "within Bänke, and Bänke are", "1,500",
          "Statistics of fit, affinity and efficiency follow.", "Variation in means", "Page 6 of 6"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(words))) << words;
    EXPECT_FALSE(text.contains(QLatin1String("unseen")));
    const QString about = answerOf("pdfinfo", {path});
    for (const char* words : {"Report of the study", "Lorvane", "595 x 842 pts (A4)", "CreationDate"})
        EXPECT_TRUE(about.contains(QLatin1String(words))) << words;
    const QStringList fonts = answerOf("pdffonts", {path}).trimmed().split('\n').mid(2);
    EXPECT_EQ(fonts.size(), 2);
    for (const QString& font : fonts)
        EXPECT_EQ(font.simplified().section(' ', -5, -5), "yes") << "embedded, " << font.toStdString();

    const QString outline =
        answerOf("pdftohtml", {"-xml", "-i", "-stdout", path}).section("<outline>", 1).simplified();
    EXPECT_TRUE(outline.startsWith(
        R"(<item page="1">Executive summary</item> <outline> <item page="1">Null hypothesis 1</item>)"));
    EXPECT_TRUE(outline.contains(
        R"(</outline> <item page="4">Detailed report</item> <outline> <item page="4">Null hypothesis 1</item>)"));
}

TEST(DocumentPress, DrawsPagesAndKnowsWhichThereAre) {
    QtDocumentPress press;
    const Document document = sampleDocument();
    const QImage image = QImage::fromData(QByteArray::fromStdString(press.picture(document, 6)), "PNG");
    EXPECT_EQ(image.size(), QSize(1275, 1650));
    EXPECT_EQ(image.pixelColor(3, 3), QColor(Qt::white));
    EXPECT_THROW(press.picture(document, 0), std::runtime_error);
    EXPECT_THROW(press.picture(document, 7), std::runtime_error);
    EXPECT_THROW(press.print(document, {}), std::runtime_error) << "nobody could answer a dialog";
}

/// Answers the dialog of printers when it comes: prints to a file or, without one, cancels.
void answerDialog(const QString& path) {
    QTimer::singleShot(0, [path] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        if (path.isEmpty())
            return dialog->reject();
        auto* name = dialog->findChild<QLineEdit*>("filename");
        ASSERT_NE(name, nullptr);
        name->setText(path);
        dialog->accept();
    });
}

TEST(DocumentPress, PrintsAPageOrAll) {
    static char name[] = "qt_tests";
    char* arguments[] = {name, nullptr};
    int count = 1;
    const QApplication application(count, arguments);
    const Document document = sampleDocument();
    const QTemporaryDir folder;
    const QString one = folder.filePath("one.pdf");
    const QString all = folder.filePath("all.pdf");
    answerDialog({});
    EXPECT_FALSE(QtDocumentPress().print(document, {}));
    answerDialog(one);
    EXPECT_TRUE(QtDocumentPress().print(document, 4));
    answerDialog(all);
    EXPECT_TRUE(QtDocumentPress().print(document, {}));
    EXPECT_TRUE(textOf(one).startsWith(QLatin1String("Detailed report")));
    EXPECT_TRUE(textOf(one).endsWith(QLatin1String("Page 4 of 6")));
    EXPECT_TRUE(textOf(all).endsWith(QLatin1String("Page 6 of 6")));
    EXPECT_TRUE(answerOf("pdfinfo", {all}).contains(QLatin1String("612 x 792 pts")));
}

}  // namespace
}  // namespace lorvane
