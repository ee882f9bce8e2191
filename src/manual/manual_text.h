// The text of a manual as Qt reads it, and what its links lead to.
#pragma once

#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>
#include <memory>
#include <string>

namespace lorvane {

/// A Markdown file. It takes a graphical application.
class ManualText {
public:
    /// The path is that of the file, which pictures and links are seen from.
    ManualText(const std::string& path, const std::string& markdown);

    const QTextDocument& document() const { return *document_; }

    /// The first heading; empty where there is none.
    const QString& title() const { return title_; }

    /// What a link becomes in a document: a web address stays, "#place" becomes "#" and the number of its
    /// heading, and a file is none. Throws ManualProblem where the heading or the file does not exist.
    std::string targetOf(const QString& link) const;

    /// The bytes of a picture. Throws ManualProblem where there is none.
    std::string pictureAt(const QString& name) const;

private:
    [[noreturn]] void complain(const QString& link, const QString& sentence) const;
    void checkFile(const QString& link) const;
    QString pathOf(const QString& name) const;

    std::string path_;
    QString markdown_;
    std::unique_ptr<QTextDocument> document_;
    QString title_;
    QStringList places_;  ///< of the headings, as links name them: "the-first-one"
};

/// The whole content of a file. Throws std::runtime_error, whose sentence names it.
std::string contentOf(const std::string& path);

}  // namespace lorvane
