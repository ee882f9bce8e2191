// The dialog that asks for one value.
#include "screen/value_dialog.h"

#include <cmath>

#include "base/number_text.h"
#include "session/assignments.h"
#include "session/field_words.h"

namespace lorvane {

namespace {

constexpr const char* valueBox = "frmValue.txtValue";

}  // namespace

ValueDialog::ValueDialog(Design& design) : design_(design), session_(design.session()) {
    dialog_ = {"frmValue",
               std::nullopt,
               "pnlLimits",
               {dialogField(valueBox)},
               {{"frmValue.cmdCancel", "Cancel", [this] { close(design_, dialog_); }},
                {"frmValue.cmdOK", "OK", [this] { apply(); }}},
               false,
               panelOf("Enter a value")};
    dialog_.fields[0].unit = "";
    dialog_.heading = panelOf("Value");
}

void ValueDialog::open(FieldRef field, const std::string& firstText) {
    const Study& s = session_.study();
    const double value = readNumberField(session_.state(), field);
    const int decimals = decimalsOf(s, *field.field);
    field_ = field;
    dialog_.heading.Caption = dialog_.fields[0].label.Caption = fieldHeading(s, field);
    dialog_.sense.Caption = fieldSense(s, field);
    dialog_.fields[0].unit = fieldUnit(session_.state(), field);
    dialog_.note.Caption = beginSentence(entryWords(s, field));
    dialog_.box(valueBox).Text = decimals == 0 ? shortestText(value) : fixedText(value, decimals);
    dialog_.isBegun = !firstText.empty();
    if (dialog_.isBegun)
        dialog_.box(valueBox).Text = firstText;
    lorvane::open(design_, dialog_);
}

void ValueDialog::apply() {
    const std::string& text = dialog_.box(valueBox).Text;
    const auto number = readNumber(text);
    const FieldLimits limits = limitsOf(session_.study(), *field_.field);
    const bool whole = field_->decimals == nullptr;
    if (!number || !limits.holds(*number) || (whole && *number != std::floor(*number))) {
        refuse(text);
        return;
    }
    close(design_, dialog_);
    enterValue(session_, field_, *number);
}

void ValueDialog::refuse(const std::string& text) {
    const std::string advice = hasDecimalComma(text) ? ", with a point, not a comma" : "";
    lorvane::refuse(design_, dialog_, dialog_.heading.Caption,
                    "Enter " + entryWords(session_.study(), field_) + advice + ".              ", {valueBox});
}

}  // namespace lorvane
