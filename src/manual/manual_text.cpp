// Qt tells no lines of a text, so what is wrong is looked for in the Markdown.
#include "manual/manual_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <algorithm>
#include <stdexcept>

#include "manual/manual_problem.h"

namespace lorvane {

namespace {

// The name of a heading in links: small letters, hyphens for blanks, and no other signs.
QString placeOf(const QString& heading) {
    QString place;
    for (const QChar letter : heading.toLower()) {
        if (letter.isLetterOrNumber() || letter == QLatin1Char('-') || letter == QLatin1Char('_'))
            place += letter;
        else if (letter == QLatin1Char(' '))
            place += QLatin1Char('-');
    }
    return place;
}

// The second heading of the same words has a number, and so on.
QString unusedPlace(const QString& place, const QStringList& used) {
    QString tried = place;
    for (int number = 1; used.contains(tried); ++number)
        tried = place + QLatin1Char('-') + QString::number(number);
    return tried;
}

// Qt joins empty cells with their neighbours, which blanks keep it from.
QString withFilledCells(const QString& markdown) {
    static const QRegularExpression empty(QStringLiteral("\\|[ \t]*(?=\\|)"));
    QStringList lines = markdown.split(QLatin1Char('\n'));
    for (QString& line : lines) {
        if (line.startsWith(QLatin1Char('|')))
            line.replace(empty, QStringLiteral("| &nbsp; "));
    }
    return lines.join(QLatin1Char('\n'));
}

bool isWebAddress(const QString& link) {
    const auto starts = [&](const char* scheme) { return link.startsWith(QLatin1String(scheme)); };
    return starts("https://") || starts("http://") || starts("mailto:");
}

}  // namespace

std::string contentOf(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("The file " + path + " cannot be read: " + file.errorString().toStdString() +
                                 ".");
    return file.readAll().toStdString();
}

ManualText::ManualText(const std::string& path, const std::string& markdown)
    : path_(path), markdown_(QString::fromStdString(markdown)), document_(std::make_unique<QTextDocument>()) {
    document_->setMarkdown(withFilledCells(markdown_), QTextDocument::MarkdownDialectGitHub);
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0)
            continue;
        const QString text = block.text().trimmed();
        title_ = places_.isEmpty() ? text : title_;
        places_ << unusedPlace(placeOf(text), places_);
    }
}

std::string ManualText::targetOf(const QString& link) const {
    if (isWebAddress(link))
        return link.toStdString();
    if (!link.startsWith(QLatin1Char('#'))) {
        checkFile(link);
        return {};
    }
    const qsizetype heading = places_.indexOf(link.mid(1));
    if (heading < 0)
        complain(link, QStringLiteral("There is no heading for the link \"%1\".").arg(link));
    return (QLatin1Char('#') + QString::number(heading)).toStdString();
}

std::string ManualText::pictureAt(const QString& name) const {
    const QString path = pathOf(name);
    if (QImage(path).isNull())
        complain(name, QStringLiteral("The picture \"%1\" does not exist or is none.").arg(name));
    return contentOf(path.toStdString());
}

void ManualText::checkFile(const QString& link) const {
    const QString path = pathOf(link.section(QLatin1Char('#'), 0, 0));
    if (!QFileInfo::exists(path))
        complain(link, QStringLiteral("There is no file for the link \"%1\".").arg(link));
    const QString place = link.section(QLatin1Char('#'), 1);
    if (place.isEmpty())
        return;
    const ManualText other(path.toStdString(), contentOf(path.toStdString()));
    if (!other.places_.contains(place))
        complain(link, QStringLiteral("The file of the link \"%1\" has no such heading.").arg(link));
}

QString ManualText::pathOf(const QString& name) const {
    return QFileInfo(QString::fromStdString(path_)).dir().filePath(name);
}

void ManualText::complain(const QString& link, const QString& sentence) const {
    const QString start = QStringLiteral("](") + link;
    const qsizetype whole = markdown_.indexOf(start + QLatin1Char(')'));
    const qsizetype at = whole < 0 ? markdown_.indexOf(start) : whole;
    const auto line = markdown_.left(std::max<qsizetype>(at, 0)).count(QLatin1Char('\n')) + 1;
    throw ManualProblem(path_, static_cast<int>(line), sentence.toStdString());
}

}  // namespace lorvane
