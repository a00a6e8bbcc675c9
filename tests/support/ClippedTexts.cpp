#include "ClippedTexts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>

namespace {

/// A text and the part of its widget where it is drawn.
struct Placed
{
    QString text;
    QRect room;
};

template<class Option>
Option OptionOf(const QWidget& widget)
{
    Option option;
    option.initFrom(&widget);
    return option;
}

QRect Contents(const QAbstractButton& button, QStyle::SubElement element)
{
    QStyleOptionButton option = OptionOf<QStyleOptionButton>(button);
    option.text = button.text();
    return button.style()->subElementRect(element, &option, &button);
}

QRect TitlePlace(const QGroupBox& box)
{
    QStyleOptionGroupBox option = OptionOf<QStyleOptionGroupBox>(box);
    option.text = box.title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    option.textAlignment = box.alignment();
    return box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                       &box);
}

QRect EditPlace(const QComboBox& combo)
{
    const QStyleOptionComboBox option = OptionOf<QStyleOptionComboBox>(combo);
    return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField,
                                         &combo);
}

Placed TextOf(const QWidget& widget)
{
    if (const auto* const label = qobject_cast<const QLabel*>(&widget))
        return {label->text(), label->contentsRect()};
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
    const QWidget* inner = &widget;
    while (!inner->isWindow() && inner->parentWidget() != nullptr) {
        place.translate(inner->pos());
        inner = inner->parentWidget();
        place &= inner->rect();
    }
    return place;
}

bool Fits(const QWidget& widget, const Placed& placed)
{
    const QRect seen = Seen(widget, placed.room);
    const QFontMetrics metrics = widget.fontMetrics();
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && label->wordWrap())
        return label->heightForWidth(seen.width()) <= seen.height();
    // The height of the letters, because a line may be higher than a label whose letters fit.
    return metrics.size(Qt::TextShowMnemonic, placed.text).width() <= seen.width() &&
           metrics.tightBoundingRect(placed.text).height() <= seen.height();
}

void AddSections(const QHeaderView& header, QMap<QString, QString>& clipped)
{
    for (int section = 0; section < header.count(); ++section) {
        if (header.isSectionHidden(section) ||
            header.sectionSizeHint(section) <= header.sectionSize(section))
            continue;
        const QString place = QStringLiteral("QHeaderView of %1, section %2");
        clipped[place.arg(header.parentWidget()->objectName()).arg(section)] =
            header.model()->headerData(section, Qt::Horizontal).toString();
    }
}

void AddTabs(const QTabBar& tabs, QMap<QString, QString>& clipped)
{
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (!tabs.rect().contains(tabs.tabRect(tab)))
            clipped[QStringLiteral("QTabBar of %1, tab %2")
                        .arg(tabs.parentWidget()->objectName())
                        .arg(tab)] = tabs.tabText(tab);
    }
}

} // namespace

QMap<QString, QString> ClippedTexts(const QWidget& window)
{
    QMap<QString, QString> clipped;
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        // A hidden page has no size of its own yet.
        if (!widget->isVisible())
            continue;
        const auto* const header = qobject_cast<const QHeaderView*>(widget);
        const auto* const tabs = qobject_cast<const QTabBar*>(widget);
        if (header != nullptr && header->orientation() == Qt::Horizontal)
            AddSections(*header, clipped);
        if (tabs != nullptr)
            AddTabs(*tabs, clipped);
        const Placed placed = TextOf(*widget);
        if (!placed.text.isEmpty() && !Fits(*widget, placed))
            clipped[QStringLiteral("%1 %2").arg(
                QString::fromLatin1(widget->metaObject()->className()), widget->objectName())] =
                placed.text;
    }
    return clipped;
}
