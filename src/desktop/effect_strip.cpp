// The strip of the effect.
#include "desktop/effect_strip.h"

#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/kit/elided_label.h"
#include "desktop/kit/menu_button.h"
#include "desktop/kit/number_label.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"
#include "desktop/menus.h"

namespace lorvane::desktop {

namespace {

constexpr int leftMargin = 18;
constexpr int rightMargin = 11;
constexpr int buttonInset = 8;   // between the edge of the button of alpha and its text
constexpr int usualHeight = 78;  // of the strip
constexpr int fieldHeight = 32;
constexpr int captionHeight = 16;
constexpr int captionGap = 4;
constexpr int captionRoom = 1;  // so that rounding cuts nothing
constexpr int lineHeight = 52;

struct CellRow {
    const char* panel;
    bool large;
    int width;
    const char* headMenu;  ///< band of a right click on the caption
};

// The scale of the outcome begins with its mean, behind a line.
constexpr std::size_t meanRow = 6;
constexpr CellRow cellRows[] = {{"pnlPrev", false, 94, "popPrevalence"}, {"pnlD", true, 112, "popDesign"},
                                {"pnlOR", true, 112, "popDesign"},       {"pnlRR", true, 112, "popDesign"},
                                {"pnlRD", true, 112, "popDesign"},       {"pnlP2", true, 112, "popDesign"},
                                {"pnlMean", false, 96, "popMean"},       {"pnlSD", false, 96, "popSD"}};

bool isMarked(const MainScreen& screen, const std::string& panel) {
    for (int number = 1; number <= screen.outlines.last; ++number) {
        const std::vector<std::string>& around = screen.outlines(number).around;
        if (screen.outlines(number).Visible && std::find(around.begin(), around.end(), panel) != around.end())
            return true;
    }
    return false;
}

const lorvane::Field& fieldOfCell(const MainScreen& screen, std::string_view panel) {
    const auto found = std::find_if(screen.fields.begin(), screen.fields.end(),
                                    [&](const FieldCells& cells) { return cells.field->cell.stem == panel; });
    return *found->field;
}

}  // namespace

EffectStrip::EffectStrip(Desk& desk, Menus& menus, QWidget* parent)
    : Card(CardTone::Plain, parent), desk_(desk), menus_(menus) {
    const MainScreen& screen = desk_.design().screen();
    for (const CellRow& row : cellRows) {
        auto* widget = new ValueCell(ValueCell::Kind::Spin, this);
        widget->setLarge(row.large);
        addField(widget, row.width).caption->installEventFilter(this);
        cells_.push_back(std::make_unique<CellBinding>(
            desk_, menus, FieldRef{&fieldOfCell(screen, row.panel), 0}, screen.cell(row.panel), widget));
    }
    otherForm_ = &addField(otherFormValue_ = makeNumber(), 0);
    derived_ = &addField(derivedValue_ = makeNumber(), 0);
    alpha_ = new MenuButton(QString(), this);
    otherFormValue_->setObjectName(QStringLiteral("pnlOther"));
    derivedValue_->setObjectName(QStringLiteral("pnlDerived"));
    alpha_->setObjectName(QStringLiteral("pnlAlphaTails"));
    alpha_->setMenu(menus.menu("popAlpha"));
    alphaField_ = &addField(alpha_, 0);
    sync();
}

EffectStrip::Field& EffectStrip::addField(QWidget* widget, int width) {
    auto* caption = new ElidedLabel(QWIDGETSIZE_MAX, this);
    setTextStyle(*caption, TextStyle::Caption);
    caption->setProperty("second", true);
    Field& field = fields_.emplace_back();
    field.caption = caption;
    field.widget = widget;
    field.width = width;
    return field;
}

// A click on a caption asks for the details of its value, a right click opens its menu.
bool EffectStrip::eventFilter(QObject* watched, QEvent* event) {
    const auto field = std::find_if(fields_.begin(), fields_.end(),
                                    [&](const Field& entry) { return entry.caption == watched; });
    const auto number = static_cast<std::size_t>(field - fields_.begin());
    if (number >= cells_.size())
        return Card::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        desk_.click(cells_[number]->panel());
    if (event->type() == QEvent::ContextMenu)
        menus_.popup(cellRows[number].headMenu, static_cast<QContextMenuEvent*>(event)->globalPos());
    return false;
}

NumberLabel* EffectStrip::makeNumber() {
    auto* label = new NumberLabel(Qt::AlignLeft, this);
    label->setTextRole(Role::SecondText);
    return label;
}

void EffectStrip::show(Field& field, bool shown, const std::string& words, const std::string& brief) {
    field.shown = shown;
    field.words = shownText(words);
    field.brief = shownText(brief);
    field.caption->setVisible(shown);
    field.widget->setVisible(shown);
}

void EffectStrip::sync() {
    const MainScreen& screen = desk_.design().screen();
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        CellBinding& cell = *cells_[i];
        const Cell& model = screen.cell(cell.panel());
        show(fields_[i], model.Visible, model.heading, model.brief);
        cell.sync();
        cell.widget()->setProblem(isMarked(screen, cell.panel()) ? ValueCell::Problem::Outlined
                                                                 : ValueCell::Problem::None);
    }
    syncOthers();
    updateGeometry();
    chooseForm();
}

void EffectStrip::syncOthers() {
    const MainScreen& screen = desk_.design().screen();
    show(*otherForm_, screen.lblOther.Visible, screen.lblOther.Caption, screen.lblOther.Caption);
    otherFormValue_->setText(shownText(screen.pnlOther.Caption));
    show(*derived_, screen.lblDerived.Visible, screen.lblDerived.Caption, screen.lblDerived.Caption);
    derivedValue_->setText(shownText(screen.pnlDerived.Caption));
    show(*alphaField_, true, screen.lblAlpha.Caption, screen.lblAlpha.Caption);
    alpha_->setAccessibleName(alphaField_->words);
}

const QString& EffectStrip::captionOf(const Field& field, const Form& form) {
    return form.brief ? field.brief : field.words;
}

QString EffectStrip::alphaText(const Form& form) const {
    const MainScreen& screen = desk_.design().screen();
    return shownText(form.brief ? screen.alphaBrief : screen.pnlAlphaTails.Caption);
}

void EffectStrip::write(const Form& form) {
    for (const Field& field : fields_)
        field.caption->setText(captionOf(field, form));
    alpha_->setText(alphaText(form));
}

int EffectStrip::widthOf(const Field& field, const Form& form) const {
    const double words =
        QFontMetricsF(textFont(TextStyle::Caption)).horizontalAdvance(captionOf(field, form));
    const int caption = std::min(static_cast<int>(std::ceil(words)) + captionRoom, form.widestCaption);
    if (field.width > 0)
        return std::max(caption, field.width);
    const QSize size = &field == alphaField_ ? alpha_->sizeWith(alphaText(form)) : field.widget->sizeHint();
    return std::max(caption, static_cast<int>(std::ceil(size.width() / zoomOf(*this))));
}

int EffectStrip::widthIn(const Form& form) const {
    int width = leftMargin + rightMargin + form.gap + 1 - buttonInset;
    if (fields_[meanRow].shown)
        width += 1 + form.gap;
    for (const Field& field : fields_) {
        if (field.shown)
            width += widthOf(field, form) + (&field == alphaField_ ? 0 : form.gap);
    }
    return width;
}

QSize EffectStrip::minimumSizeHint() const {
    return {zoomed(*this, form_->brief ? widthIn(*form_) : 0), zoomed(*this, sizes_.strip)};
}

// The roomiest form that fits.
void EffectStrip::chooseForm() {
    for (const Form& form : forms) {
        if (narrow_ && &form == forms)
            continue;
        form_ = &form;
        if (widthIn(form) * zoomOf(*this) <= width())
            break;
    }
    write(*form_);
    updateGeometry();
    placeAll();
}

// Places a field and gives what stands behind it.
int EffectStrip::place(const Field& field, int left, const Form& form) {
    const int width = widthOf(field, form);
    const int top = sizes_.strip - fieldHeight - (sizes_.strip < usualHeight ? 9 : 14);
    const auto inPixels = [this](int x, int y, int w, int h) {
        return QRect(zoomed(*this, x), zoomed(*this, y), zoomed(*this, w), zoomed(*this, h));
    };
    const int caption = &field == alphaField_ ? buttonInset : 0;
    field.caption->setGeometry(
        inPixels(left + caption, top - captionGap - captionHeight, width - caption, captionHeight));
    field.widget->setGeometry(inPixels(left, top, field.width > 0 ? field.width : width, fieldHeight));
    return left + width + form.gap;
}

void EffectStrip::placeAll() {
    const Form& form = *form_;
    const std::pair before(meanLine_, alphaLine_);
    int left = leftMargin;
    for (const Field& field : fields_) {
        if (!field.shown || &field == alphaField_)
            continue;
        if (&field == &fields_[meanRow]) {
            meanLine_ = left;
            left += 1 + form.gap;
        }
        left = place(field, left, form);
    }
    const int whole = static_cast<int>(width() / zoomOf(*this));
    const int alphaLeft =
        std::max(left + 1 + form.gap - buttonInset, whole - rightMargin - widthOf(*alphaField_, form));
    alphaLine_ = alphaLeft + buttonInset - form.gap - 1;
    place(*alphaField_, alphaLeft, form);
    if (std::pair(meanLine_, alphaLine_) != before)
        update();
}

void EffectStrip::setSizes(const PageSizes& sizes, bool narrow) {
    sizes_ = sizes;
    narrow_ = narrow;
    chooseForm();
    update();
}

void EffectStrip::resizeEvent(QResizeEvent* event) {
    Card::resizeEvent(event);
    chooseForm();
}

void EffectStrip::paintEvent(QPaintEvent* event) {
    Card::paintEvent(event);
    QPainter painter(this);
    const int top = zoomed(*this, sizes_.strip < usualHeight ? 8 : 12);
    const auto paintLine = [&](int left) {
        painter.fillRect(zoomed(*this, left), top, 1, zoomed(*this, lineHeight), colour(Role::Line));
    };
    if (fields_[meanRow].shown)
        paintLine(meanLine_);
    paintLine(alphaLine_);
}

ValueCell* EffectStrip::firstCell() const {
    const auto shown = std::find_if(cells_.begin(), cells_.end(),
                                    [](const auto& cell) { return !cell->widget()->isHidden(); });
    return shown == cells_.end() ? nullptr : (*shown)->widget();
}

QWidget* EffectStrip::captionOf(const QWidget* widget) const {
    const auto field = std::find_if(fields_.begin(), fields_.end(),
                                    [&](const Field& entry) { return entry.widget == widget; });
    return field == fields_.end() ? nullptr : field->caption;
}

ValueCell* EffectStrip::cell(const std::string& panel) const {
    const auto found =
        std::find_if(cells_.begin(), cells_.end(), [&](const auto& cell) { return cell->panel() == panel; });
    return found == cells_.end() ? nullptr : (*found)->widget();
}

}  // namespace lorvane::desktop
