// The letters of a menu that reach its entries by keyboard.
#include "desktop/mnemonics.h"

#include <QAction>
#include <QHash>
#include <QSet>
#include <utility>

namespace lorvane::desktop {

namespace {

/// A text without the mark, and the place of the letter behind it.
struct Entry {
    QString text;  ///< each "&" that is shown stands twice
    qsizetype marked = -1;
};

Entry entryOf(const QString& marked) {
    Entry entry;
    for (qsizetype i = 0; i < marked.size(); ++i) {
        const bool doubled = marked.mid(i, 2) == QLatin1String("&&");
        if (doubled)
            entry.text += marked[i++];
        else if (marked[i] == QLatin1Char('&')) {
            entry.marked = entry.text.size();
            continue;
        }
        entry.text += marked[i];
    }
    return entry;
}

// What stands behind a tab is the key, not the text.
qsizetype endOf(const QString& text) {
    const qsizetype tab = text.indexOf(QLatin1Char('\t'));
    return tab < 0 ? text.size() : tab;
}

/// The places that a letter may have, the best ones first: the marked one, numbers, beginnings of words,
/// others.
QList<qsizetype> placesOf(const Entry& entry) {
    QList<qsizetype> first, later;
    for (qsizetype i = 0; i < endOf(entry.text); ++i) {
        const bool begins = i == 0 || !entry.text[i - 1].isLetterOrNumber();
        const bool isBest = i == entry.marked || (begins && entry.text[i].isDigit() && entry.marked < 0);
        if (isBest)
            first.prepend(i);
        else if (entry.text[i].isLetterOrNumber())
            (begins ? first : later).append(i);
    }
    return first + later;
}

/// Which entry has which letter. An entry for which none is left makes others move to their next best ones.
class Letters {
public:
    explicit Letters(QList<Entry> entries) : entries_(std::move(entries)), places_(entries_.size(), -1) {
        for (qsizetype i = 0; i < entries_.size(); ++i)
            takeMarked(i);
        for (qsizetype i = 0; i < entries_.size(); ++i) {
            QSet<QChar> asked;
            if (places_[i] < 0)
                take(i, asked);
        }
    }

    QString textOf(qsizetype entry) const {
        QString text = entries_[entry].text;
        return places_[entry] < 0 ? text : text.insert(places_[entry], QLatin1Char('&'));
    }

private:
    QChar letterAt(qsizetype entry, qsizetype place) const { return entries_[entry].text[place].toUpper(); }

    void give(qsizetype entry, qsizetype place) {
        owners_.insert(letterAt(entry, place), entry);
        places_[entry] = place;
    }

    void takeMarked(qsizetype entry) {
        const qsizetype place = entries_[entry].marked;
        if (place >= 0 && !owners_.contains(letterAt(entry, place)))
            give(entry, place);
    }

    bool take(qsizetype entry, QSet<QChar>& asked) {
        const QList<qsizetype> places = placesOf(entries_[entry]);
        for (const bool onlyFree : {true, false}) {
            for (const qsizetype place : places) {
                const QChar letter = letterAt(entry, place);
                const bool isFree = !owners_.contains(letter);
                if (onlyFree ? !isFree : asked.contains(letter))
                    continue;
                asked.insert(letter);
                if (isFree || take(owners_.value(letter), asked)) {
                    give(entry, place);
                    return true;
                }
            }
        }
        return false;
    }

    QList<Entry> entries_;
    QList<qsizetype> places_;
    QHash<QChar, qsizetype> owners_;
};

}  // namespace

void giveMnemonics(const QList<QAction*>& entries) {
    QList<QAction*> shown = entries;
    shown.removeIf([](const QAction* action) { return action->isSeparator() || !action->isVisible(); });
    QList<Entry> texts;
    for (const QAction* action : shown)
        texts.append(entryOf(action->text()));
    const Letters letters(texts);
    for (qsizetype i = 0; i < shown.size(); ++i)
        shown[i]->setText(letters.textOf(i));
}

QString withoutMnemonic(const QString& text) {
    return entryOf(text).text.replace(QLatin1String("&&"), QLatin1String("&"));
}

}  // namespace lorvane::desktop
