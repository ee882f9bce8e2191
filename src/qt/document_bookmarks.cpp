// The tree of bookmarks and the places of links, by the plain C functions of the library: its classes need
// another language level.
#include "qt/document_bookmarks.h"

#include <qpdf/qpdf-c.h>
#include <stdexcept>
#include <vector>

namespace lorvane {

namespace {

struct Bookmark {
    qpdf_oh entry;
    std::vector<Bookmark> below = {};
};

// A file in memory. Its objects live as long as it.
class File {
public:
    explicit File(const std::string& bytes) {
        qpdf_silence_errors(data_);
        qpdf_set_suppress_warnings(data_, QPDF_TRUE);
        qpdf_read_memory(data_, "document", bytes.data(), bytes.size(), nullptr);
        check();
    }
    ~File() { qpdf_cleanup(&data_); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    qpdf_oh root() { return qpdf_get_root(data_); }
    qpdf_oh name(const char* text) { return qpdf_oh_new_name(data_, text); }
    qpdf_oh text(const QString& text) { return qpdf_oh_new_unicode_string(data_, text.toUtf8().constData()); }
    qpdf_oh entry() { return qpdf_make_indirect_object(data_, qpdf_oh_new_dictionary(data_)); }
    void set(qpdf_oh owner, const char* key, qpdf_oh value) { qpdf_oh_replace_key(data_, owner, key, value); }

    qpdf_oh array() { return qpdf_oh_new_array(data_); }
    void add(qpdf_oh list, qpdf_oh value) { qpdf_oh_append_item(data_, list, value); }
    qpdf_oh real(double value) { return qpdf_oh_new_real_from_double(data_, value, 2); }
    qpdf_oh bytesOf(const std::string& text) { return qpdf_oh_new_string(data_, text.c_str()); }

    // What lies on a page and is no part of its text, such as links; counted from 1.
    qpdf_oh notesOf(int page) {
        const qpdf_oh owner = qpdf_get_page_n(data_, static_cast<std::size_t>(page - 1));
        if (!qpdf_oh_has_key(data_, owner, "/Annots"))
            set(owner, "/Annots", array());
        return qpdf_oh_get_key(data_, owner, "/Annots");
    }

    // A height on a page, counted from the lower edge.
    qpdf_oh place(int page, double height) {
        const qpdf_oh all = array();
        const qpdf_oh asItIs = qpdf_oh_new_null(data_);
        for (const qpdf_oh item : {qpdf_get_page_n(data_, static_cast<std::size_t>(page - 1)), name("/XYZ"),
                                   asItIs, real(height), asItIs})
            add(all, item);
        return all;
    }

    // Ties the entries below one together; returns how many there are at all depths.
    std::size_t tie(qpdf_oh parent, const std::vector<Bookmark>& entries) {
        if (entries.empty())
            return 0;
        std::size_t count = entries.size();
        for (std::size_t i = 0; i < entries.size(); ++i) {
            set(entries[i].entry, "/Parent", parent);
            if (i > 0) {
                set(entries[i].entry, "/Prev", entries[i - 1].entry);
                set(entries[i - 1].entry, "/Next", entries[i].entry);
            }
            count += tie(entries[i].entry, entries[i].below);
        }
        set(parent, "/First", entries.front().entry);
        set(parent, "/Last", entries.back().entry);
        set(parent, "/Count", qpdf_oh_new_integer(data_, static_cast<long long>(count)));
        return count;
    }

    std::string bytes() {
        qpdf_init_write_memory(data_);
        qpdf_set_object_stream_mode(data_, qpdf_o_generate);
        qpdf_write(data_);
        check();
        return {reinterpret_cast<const char*>(qpdf_get_buffer(data_)), qpdf_get_buffer_length(data_)};
    }

private:
    void check() {
        if (qpdf_has_error(data_))
            throw std::runtime_error("The bookmarks of the document could not be made.");
    }

    qpdf_data data_ = qpdf_init();
};

qpdf_oh placeOf(File& file, const DocumentPages& pages, const DocumentPages::Heading& heading) {
    return file.place(heading.page, pages.paper().height() - heading.top);
}

// Where a link leads: to a heading of this document, or out of it. A heading that is not there leads nowhere.
void setTarget(File& file, qpdf_oh entry, const DocumentPages& pages, const std::string& target) {
    if (!target.starts_with('#')) {
        const qpdf_oh action = file.entry();
        file.set(action, "/S", file.name("/URI"));
        file.set(action, "/URI", file.bytesOf(target));
        file.set(entry, "/A", action);
        return;
    }
    const auto number = QString::fromStdString(target.substr(1)).toInt();
    if (number >= 0 && number < pages.headings().size())
        file.set(entry, "/Dest", placeOf(file, pages, pages.headings()[number]));
}

void addLinks(File& file, const DocumentPages& pages) {
    const double height = pages.paper().height();
    for (const auto& [target, spot] : pages.links()) {
        const qpdf_oh entry = file.entry();
        file.set(entry, "/Type", file.name("/Annot"));
        file.set(entry, "/Subtype", file.name("/Link"));
        const qpdf_oh place = file.array();
        for (const double edge :
             {spot.place.left(), height - spot.place.bottom(), spot.place.right(), height - spot.place.top()})
            file.add(place, file.real(edge));
        file.set(entry, "/Rect", place);
        const qpdf_oh noBorder = file.array();
        for (int side = 0; side < 3; ++side)
            file.add(noBorder, file.real(0));
        file.set(entry, "/Border", noBorder);
        setTarget(file, entry, pages, target);
        file.add(file.notesOf(spot.page), entry);
    }
}

std::vector<Bookmark> bookmarksOf(File& file, const DocumentPages& pages) {
    std::vector<Bookmark> parts;
    for (const DocumentPages::Heading& heading : pages.headings()) {
        const qpdf_oh entry = file.entry();
        file.set(entry, "/Title", file.text(heading.text));
        file.set(entry, "/Dest", placeOf(file, pages, heading));
        const bool isTop = heading.isPart || parts.empty();
        (isTop ? parts : parts.back().below).push_back({entry});
    }
    return parts;
}

}  // namespace

std::string withBookmarks(const std::string& pdf, const DocumentPages& pages) {
    File file(pdf);
    addLinks(file, pages);
    if (const std::vector<Bookmark> bookmarks = bookmarksOf(file, pages); !bookmarks.empty()) {
        const qpdf_oh outlines = file.entry();
        file.tie(outlines, bookmarks);
        file.set(file.root(), "/Outlines", outlines);
        file.set(file.root(), "/PageMode", file.name("/UseOutlines"));
    }
    return file.bytes();
}

}  // namespace lorvane
