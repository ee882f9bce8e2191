// The table of trials on its card: columns as wide as their numbers, one row marked. Knows texts only.
#pragma once

#include "desktop/kit/card.h"
#include "desktop/kit/record_table.h"

namespace lorvane::desktop {

class TrialTable : public Card {
    Q_OBJECT

public:
    explicit TrialTable(QWidget* parent = nullptr);

    /// Heads, rows of numbers below them, and the row that is marked, which is seen when rows are new.
    void setTrials(const QStringList& heads, const std::vector<QStringList>& rows, int marked);

    RecordTable* table() const { return table_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitColumns();

    RecordTable* table_;
};

}  // namespace lorvane::desktop
