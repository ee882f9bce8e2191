// A short list of files under a heading, to choose one of or to look for more. It opens no file and looks for
// none.
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

class FileList : public QWidget {
    Q_OBJECT

public:
    /// The number of the first row, which stands for files that are not in the list. Files count from 0.
    static constexpr int More = -1;

    explicit FileList(QWidget* parent = nullptr);

    /// The heading, and the text of the first row.
    void setTexts(const QString& heading, const QString& more);

    /// The files below the first row. The current row stays current by its number, as far as it is there.
    void setEntries(const std::vector<FileEntry>& entries);

    /// Makes a row current and brings it into view, without a signal.
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
