// Documents as files, pictures and on paper.
#pragma once

#include "platform/document.h"
#include "qt/offscreen_application.h"

namespace lorvane {

/// Works in programs with and without windows; printing takes one.
class QtDocumentPress final : public DocumentPress {
public:
    std::unique_ptr<DocumentSurface> start(const PageSetup& page) override;
    std::string pdf(const Document& document) override;
    std::string picture(const Document& document, int page) override;
    bool print(const Document& document, std::optional<int> page) override;

private:
    OffscreenApplication application_;
};

}  // namespace lorvane
