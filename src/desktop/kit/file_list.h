// A short list of files under a heading. The user chooses one of them, or the first row, to look for another.
// The list opens no file and looks for none.
#pragma once

#include <vector>

#include <QWidget>

class QLabel;
class QListView;
class QModelIndex;
class QStandardItemModel;

namespace lorvane::desktop {

/// A file of the list.
struct FileEntry {
    QString title;
    QString path;
    bool missing = false;  ///< shown quiet; it can be chosen all the same

    friend bool operator==(const FileEntry&, const FileEntry&) = default;
};

/// Files are numbered from 0 in the order of the list. One row is current. A row becomes current when the
/// pointer moves over it.
class FileList : public QWidget {
    Q_OBJECT

public:
    /// The number of the first row, which stands for files that are not in the list.
    static constexpr int More = -1;

    explicit FileList(QWidget* parent = nullptr);

    /// The heading, and the text of the first row.
    void setTexts(const QString& heading, const QString& more);

    /// The files below the first row. The row with the number of the current one is current afterwards, or
    /// the first row when there are too few files. Sends no signal.
    void setEntries(const std::vector<FileEntry>& entries);

    /// The number of the current row. Setting it brings the row into view and sends no signal.
    void setCurrent(int file);
    int current() const;

signals:
    /// The user went to a row, by keys or by moving the pointer over it.
    void currentChanged(int file);
    /// Double click on a row, or Enter.
    void activated(int file);

private:
    void tellCurrent(const QModelIndex& index);

    QLabel* heading_;
    QListView* view_;
    QStandardItemModel* rows_;
    std::vector<FileEntry> entries_;
    bool byCode_ = false;
};

}  // namespace lorvane::desktop
