// The table of trials on its card: columns as wide as their numbers, one row marked. Knows texts only.
#pragma once

#include "desktop/kit/card.h"
#include "desktop/kit/record_table.h"

namespace lorvane::desktop {

/// The table inside selects and scrolls as any RecordTable does.
class TrialTable : public Card {
    Q_OBJECT

public:
    explicit TrialTable(QWidget* parent = nullptr);

    /// The heads, the rows of numbers below them, and the number of the row to mark. Where the rows are other
    /// than before, the table scrolls to the marked one.
    void setTrials(const QStringList& heads, const std::vector<QStringList>& rows, int marked);

    /// The table on the card, for its selection and signals. The card owns it.
    RecordTable* table() const { return table_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitColumns();

    RecordTable* table_;
};

}  // namespace lorvane::desktop
