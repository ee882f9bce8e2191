// Paragraphs of the core as the widget shows them.
#pragma once

#include <vector>

#include "base/marked_text.h"
#include "desktop/kit/paragraph_view.h"

namespace lorvane::desktop {

QList<ShownParagraph> shownParagraphs(const std::vector<Paragraph>& paragraphs);

}  // namespace lorvane::desktop
