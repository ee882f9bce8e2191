// Paragraphs of the core as the widget shows them.
#include "desktop/shown_paragraphs.h"

#include "desktop/desk.h"

namespace lorvane::desktop {

QList<ShownParagraph> shownParagraphs(const std::vector<Paragraph>& paragraphs) {
    QList<ShownParagraph> shown;
    for (const Paragraph& paragraph : paragraphs) {
        ShownParagraph runs;
        for (const Run& run : paragraph)
            runs.append({shownText(run.text), run.strong});
        shown.append(runs);
    }
    return shown;
}

}  // namespace lorvane::desktop
