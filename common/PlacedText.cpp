#include "PlacedText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTextDocument>

namespace {

using tarn::OptionOf;
using tarn::PlacedText;

template<class Button>
QRect Contents(const Button& button, QStyle::SubElement element)
{
    const auto option = OptionOf<QStyleOptionButton>(button);
    return button.style()->subElementRect(element, &option, &button);
}

QRect TitlePlace(const QGroupBox& box)
{
    const auto option = OptionOf<QStyleOptionGroupBox>(box);
    return box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                       &box);
}

QRect EditPlace(const QComboBox& combo)
{
    const auto option = OptionOf<QStyleOptionComboBox>(combo);
    return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField,
                                         &combo);
}

bool IsPlain(const QLabel& label)
{
    return label.textFormat() == Qt::PlainText ||
           (label.textFormat() == Qt::AutoText && !Qt::mightBeRichText(label.text()));
}

PlacedText WholeText(const QWidget& widget)
{
    if (const auto* const label = qobject_cast<const QLabel*>(&widget))
        return IsPlain(*label) ? PlacedText{label->text(), label->contentsRect()} : PlacedText();
    if (const auto* const push = qobject_cast<const QPushButton*>(&widget))
        return {push->text(), Contents(*push, QStyle::SE_PushButtonContents)};
    if (const auto* const check = qobject_cast<const QCheckBox*>(&widget))
        return {check->text(), Contents(*check, QStyle::SE_CheckBoxContents)};
    if (const auto* const radio = qobject_cast<const QRadioButton*>(&widget))
        return {radio->text(), Contents(*radio, QStyle::SE_RadioButtonContents)};
    if (const auto* const box = qobject_cast<const QGroupBox*>(&widget))
        return {box->title(), TitlePlace(*box)};
    if (const auto* const combo = qobject_cast<const QComboBox*>(&widget))
        return {combo->currentText(), EditPlace(*combo)};
    return {};
}

// The part of @p place that the enclosing widgets leave visible.
QRect Seen(const QWidget& widget, QRect place)
{
    place &= widget.rect();
    QPoint offset;
    const QWidget* inner = &widget;
    while (!inner->isWindow() && inner->parentWidget() != nullptr) {
        offset += inner->pos();
        inner = inner->parentWidget();
        place &= inner->rect().translated(-offset);
    }
    return place;
}

} // namespace

PlacedText tarn::TextIn(const QWidget& widget)
{
    PlacedText placed = WholeText(widget);
    if (!placed.text.isEmpty())
        placed.place = Seen(widget, placed.place);
    return placed;
}

bool tarn::IsCut(const QWidget& widget, const PlacedText& placed)
{
    if (placed.text.isEmpty())
        return false;
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && label->wordWrap())
        return label->heightForWidth(placed.place.width()) > placed.place.height();
    // The height of the letters, because a line may be higher than a label whose letters fit.
    const QFontMetrics metrics = widget.fontMetrics();
    return metrics.size(Qt::TextShowMnemonic, placed.text).width() > placed.place.width() ||
           metrics.tightBoundingRect(placed.text).height() > placed.place.height();
}

bool tarn::IsCut(const QHeaderView& header, int section)
{
    return !header.isSectionHidden(section) &&
           header.sectionSizeHint(section) > header.sectionSize(section);
}
