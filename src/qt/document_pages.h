// The pages of a document: which line and which table stands where. Knows nothing of files and printers.
#pragma once

#include <QImage>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "platform/document.h"
#include "qt/document_table_layout.h"
#include "qt/document_text.h"

class QPainter;

namespace lorvane {

/// The pages of a document, laid out. Lengths are in points, 1/72 inch, where nothing else is told; pages are
/// counted from 1. It takes a graphical application.
class DocumentPages final : public DocumentSurface {
public:
    /// To be fed step by step.
    explicit DocumentPages(const PageSetup& page);

    /// All at once.
    explicit DocumentPages(const Document& document);

    void send(const DocumentStep& step) override;
    double Y1() override;
    double heightOf(const DocumentTable& table) override;
    int pages() override { return static_cast<int>(pages_.size()); }

    QSizeF paper() const;

    /// The painter's unit is a point and its origin the paper's corner. The paper itself is not painted.
    void paint(QPainter& painter, int page) const;

    struct Spot {
        int page;
        QRectF place;
    };

    /// Where a stretch of text stands, a spot for each of its lines. The steps are counted as they were sent.
    QList<Spot> spotsOf(const TextPlace& place) const;

    struct Heading {
        QString text;
        bool isPart;  ///< such as "Executive summary"; else a section of a part
        int page;
        double top;  ///< from the upper edge of the paper
    };

    const QList<Heading>& headings() const { return headings_; }

    struct Link {
        std::string target;  ///< as in TextSpan
        Spot spot;
    };

    /// The links of all paragraphs, one for each line that holds some of one.
    QList<Link> links() const;

private:
    /// Lines of a text, a table, or a picture.
    struct Placed {
        std::size_t step = 0;
        double top = 0;   ///< twips, as all lengths in here
        double left = 0;  ///< beside the margin
        std::shared_ptr<const DocumentText> text = nullptr;
        int from = 0;
        int end = 0;
        std::shared_ptr<const DocumentText> mark = nullptr;  ///< left of the first line
        std::shared_ptr<const DocumentTableLayout> table = nullptr;
        QImage picture = {};
        QSizeF size = QSizeF(0, 0);  ///< of the picture
    };
    using Page = std::vector<Placed>;

    void take(const step::FontSize& size) { points_ = size.points; }
    void take(const step::FontBold& weight) { bold_ = weight.on; }
    void take(const step::Paragraph& paragraph);
    void take(const step::Text& text);
    void take(const DocumentTable& table);
    void take(const DocumentPicture& picture);
    void take(const step::NewPage&);
    void take(const step::EndDoc&) {}

    DocumentTableLayout layoutOf(const DocumentTable& table) const;
    bool fits(double height) const;
    int roomFor(const DocumentText& text) const;
    bool holdsOnlyHeadings() const { return waiting_.value_or(pages_.back().size()) == 0; }
    int leastLines(const DocumentText& text) const;
    void put(Placed placed, double height);
    void putText(const std::shared_ptr<const DocumentText>& text, const step::Paragraph& paragraph);
    std::shared_ptr<const DocumentText> markOf(const step::Paragraph& paragraph) const;
    void putWhole(const Placed& placed, double height);
    void paintPlaced(QPainter& painter, const Placed& placed) const;
    void putHeading(const std::shared_ptr<const DocumentText>& text);
    void beginPage();
    QPointF cornerOf(const Placed& placed) const;
    static std::vector<QRectF> spotsIn(const Placed& placed, const TextPlace& place);
    Spot spotOf(std::size_t page, const Placed& placed, const QRectF& place) const;
    void paintFoot(QPainter& painter, int page) const;

    PageSetup setup_;
    DocumentFonts fonts_;
    double points_ = 11;
    bool bold_ = false;
    bool belowTable_ = false;
    bool belowHeading_ = false;
    double y_;  ///< where the next line begins
    std::size_t steps_ = 0;
    std::vector<Page> pages_ = {Page()};
    std::optional<std::size_t>
        waiting_;  ///< the first heading at the foot of the last page, until a text follows
    QList<Heading> headings_;
};

}  // namespace lorvane
