// Walks the blocks of a manual from its head to its end.
#include "manual/manual_document.h"

#include <QImage>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <algorithm>

#include "manual/manual_table.h"

namespace lorvane {

namespace {

constexpr double bodyPoints = 11;
constexpr double codePoints = 9;
constexpr double tablePoints = 9.5;
constexpr double notePoints = 9;
constexpr double headingPoints[] = {20, 14, 12, 11};
constexpr double partGap = 10;  ///< points above a part, beside the gap below what stands before
constexpr double blockGap = 7;  ///< points below a paragraph
constexpr double codeIndent = 0.2;
constexpr double pictureDots = 120;  ///< of a picture an inch of the paper, where they have room
constexpr double wholeTable = 4;     ///< inches of a table that is not parted
constexpr double leastRoom = 1.5;    ///< inches of a page that a part of a table is worth

class Writer {
public:
    Writer(const ManualText& text, std::string lineBelowTitle, DocumentPress& press)
        : text_(text), lineBelowTitle_(std::move(lineBelowTitle)) {
        document_.page.title = text.title().toStdString();
        surface_ = press.start(document_.page);
    }

    Document write() {
        const QTextFrame* root = text_.document().rootFrame();
        for (auto place = root->begin(); place != root->end(); ++place) {
            if (const auto* table = qobject_cast<const QTextTable*>(place.currentFrame()))
                writeTable(*table);
            else if (place.currentBlock().isValid())
                writeBlock(place.currentBlock());
        }
        endLines();
        send(step::EndDoc{});
        return std::move(document_);
    }

private:
    /// The paragraphs that come as one: lines of code, items of a list.
    enum class Runs { none, code, list };

    template <class Step>
    void send(Step step) {
        surface_->send(document_.steps.emplace_back(std::move(step)));
    }

    void sendText(step::Paragraph paragraph, double points) {
        send(step::FontSize{points});
        send(std::move(paragraph));
    }

    void gap(double points) {
        send(step::FontSize{points});
        send(step::Text{"\n"});
    }

    void endLines() {
        if (!code_.empty())
            sendText({.text = code_, .indent = codeIndent, .equalWidth = true}, codePoints);
        code_.clear();
        if (run_ != Runs::none)
            gap(blockGap);
        run_ = Runs::none;
    }

    void begin(Runs run) {
        if (run_ != run)
            endLines();
        run_ = run;
    }

    void writeBlock(const QTextBlock& block) {
        const QTextBlockFormat format = block.blockFormat();
        if (format.hasProperty(QTextFormat::BlockCodeFence) || format.nonBreakableLines())
            return writeCode(block.text());
        if (block.textList())
            return writeItem(block);
        endLines();
        if (format.headingLevel() > 0)
            return writeHeading(block.text().trimmed(), format.headingLevel());
        step::Paragraph paragraph = paragraphOf(block);
        paragraph.indent =
            (format.indent() + format.property(QTextFormat::BlockQuoteLevel).toInt()) * markWidth;
        if (!paragraph.text.empty()) {
            sendText(std::move(paragraph), bodyPoints);
            gap(blockGap);
        }
        writePictures(block);
    }

    void writeCode(const QString& line) {
        if (run_ == Runs::code)
            code_ += "\n";
        begin(Runs::code);
        code_ += line.toStdString();
    }

    void writeItem(const QTextBlock& block) {
        const QTextList& list = *block.textList();
        if (list.format().indent() == 1 && list_ != &list)
            endLines();
        list_ = list.format().indent() == 1 ? &list : list_;
        begin(Runs::list);
        step::Paragraph item = paragraphOf(block);
        item.indent = std::max(1, list.format().indent()) * markWidth;
        const bool isCounted = list.format().style() == QTextListFormat::ListDecimal;
        item.mark = isCounted ? std::to_string(list.itemNumber(block) + 1) + "." : "\u2022";
        sendText(std::move(item), bodyPoints);
        writePictures(block);
    }

    void writeHeading(const QString& text, int level) {
        const auto row = static_cast<std::size_t>(std::min(level, 4)) - 1;
        if (level <= 2)
            gap(partGap);
        send(step::FontBold{true});
        sendText({.text = text.toStdString()}, headingPoints[row]);
        send(step::FontBold{false});
        gap(blockGap);
        if (level == 1 && !lineBelowTitle_.empty()) {
            sendText({.text = std::exchange(lineBelowTitle_, "")}, notePoints);
            gap(blockGap);
        }
    }

    void writeTable(const QTextTable& source) {
        endLines();
        send(step::FontSize{tablePoints});
        DocumentTable table = manualTable(source, document_.page.textWidth());
        while (fullHeight(table, *surface_) > std::max(roomOnPage(), wholeTable)) {
            if (roomOnPage() < leastRoom)
                send(step::NewPage{});
            send(takeRows(table, roomOnPage(), *surface_));
            send(step::NewPage{});
            if (table.rows.size() <= table.headRows)
                return;
        }
        send(table);
        gap(blockGap);
    }

    double roomOnPage() { return document_.page.height - document_.page.topMargin - surface_->Y1(); }

    void writePictures(const QTextBlock& block) {
        for (auto place = block.begin(); !place.atEnd(); ++place) {
            const QTextCharFormat format = place.fragment().charFormat();
            if (!format.isImageFormat())
                continue;
            DocumentPicture picture{.png = text_.pictureAt(format.toImageFormat().name())};
            const auto bytes = QByteArray::fromStdString(picture.png);
            picture.width = QImage::fromData(bytes).width() / pictureDots;
            picture.caption = format.property(QTextFormat::ImageAltText).toString().toStdString();
            send(picture);
            gap(blockGap);
        }
    }

    step::Paragraph paragraphOf(const QTextBlock& block) const {
        step::Paragraph paragraph;
        for (auto place = block.begin(); !place.atEnd(); ++place) {
            const QTextCharFormat format = place.fragment().charFormat();
            if (format.isImageFormat())
                continue;
            TextSpan span = spanOf(format);
            span.from = paragraph.text.size();
            // Lines of a paragraph that its writer parts come with a sign of their own.
            const QString words = place.fragment().text().replace(QChar::LineSeparator, QLatin1Char('\n'));
            paragraph.text += words.toStdString();
            span.length = paragraph.text.size() - span.from;
            if (span.bold || span.equalWidth || !span.link.empty())
                paragraph.spans.push_back(std::move(span));
        }
        return paragraph;
    }

    TextSpan spanOf(const QTextCharFormat& format) const {
        TextSpan span{.bold = format.fontWeight() >= QFont::DemiBold, .equalWidth = format.fontFixedPitch()};
        if (format.isAnchor())
            span.link = text_.targetOf(format.anchorHref());
        return span;
    }

    const ManualText& text_;
    std::string lineBelowTitle_;
    Document document_;
    std::unique_ptr<DocumentSurface> surface_;
    Runs run_ = Runs::none;
    const QTextList* list_ = nullptr;  ///< the last one that is in no other
    std::string code_;
};

}  // namespace

Document manualOf(const ManualText& text, const std::string& lineBelowTitle, DocumentPress& press) {
    return Writer(text, lineBelowTitle, press).write();
}

}  // namespace lorvane
