// A surface that keeps what is sent to it.
#pragma once

#include <memory>
#include <utility>

#include "platform/document.h"

namespace lorvane {

/// Adds every step to a document, and passes it on to the pages that measure it. Without them nothing has a
/// height, and pages begin where they are asked for.
class RecordingSurface final : public DocumentSurface {
public:
    RecordingSurface(Document& document, std::unique_ptr<DocumentSurface> pages)
        : document_(document), pages_(std::move(pages)) {}

    void send(const DocumentStep& step) override;
    double Y1() override;
    double heightOf(const DocumentTable& table) override;
    int pages() override;

private:
    Document& document_;
    std::unique_ptr<DocumentSurface> pages_;
    int unmeasured_ = 1;
};

}  // namespace lorvane
