// The table of trials on its card: columns as wide as their numbers, one row marked, one proven and one
// selected at most. Knows texts only.
#pragma once

#include "desktop/kit/card.h"
#include "desktop/kit/record_table.h"

namespace lorvane::desktop {

/// The table inside selects and scrolls as any RecordTable does.
class TrialTable : public Card {
    Q_OBJECT

public:
    explicit TrialTable(QWidget* parent = nullptr);

    /// The heads, the rows of numbers below them, the number of the row to mark, and that of the proven one,
    /// which has a diamond and says so in words; -1 for none. Where the rows are other than before, the table
    /// scrolls to the marked one.
    void setTrials(const QStringList& heads, const std::vector<QStringList>& rows, int marked,
                   int proven = -1, const QString& provenWords = {});

    /// Selects a row, and scrolls to it; below 0 none is, and the keys start from the marked one.
    void setShown(int row);

    /// The height of a row, and of the card with so many of them to be seen.
    static constexpr int rowHeight = 30;
    static int heightOf(int rows);

    /// The table on the card, for its selection and signals. The card owns it.
    RecordTable* table() const { return table_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitColumns();

    RecordTable* table_;
    int marked_ = -1;
    int shown_ = -1;
};

}  // namespace lorvane::desktop
