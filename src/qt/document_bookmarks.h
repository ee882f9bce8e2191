// Bookmarks and links in a PDF file: the headings of a document, for the side bar of whoever reads it, and
// what a click on a text leads to.
#pragma once

#include <string>

#include "qt/document_pages.h"

namespace lorvane {

/// The bytes of a file of these pages with their links and a bookmark for every heading, sections below their
/// part. It opens with the bookmarks shown. A file that cannot be read throws std::runtime_error.
std::string withBookmarks(const std::string& pdf, const DocumentPages& pages);

}  // namespace lorvane
