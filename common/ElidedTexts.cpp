#include "ElidedTexts.h"

#include "PlacedText.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOption>
#include <QStylePainter>
#include <QTextDocument>

namespace {

using tarn::PlacedText;

QString ToolTipOf(const QString& text)
{
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

template<class Button>
void DrawButton(Button& button, QStyle::ControlElement element, const QString& text)
{
    auto option = tarn::OptionOf<QStyleOptionButton>(button);
    option.text = text;
    QStylePainter(&button).drawControl(element, option);
}

void DrawBox(QGroupBox& box, const QString& title)
{
    auto option = tarn::OptionOf<QStyleOptionGroupBox>(box);
    option.text = title;
    QStylePainter(&box).drawComplexControl(QStyle::CC_GroupBox, option);
}

void DrawLabel(QLabel& label, const PlacedText& placed)
{
    const Qt::Alignment aligned =
        QStyle::visualAlignment(label.layoutDirection(), label.alignment());
    QStylePainter(&label).drawItemText(placed.place, int(aligned), label.palette(),
                                       label.isEnabled(), placed.text, label.foregroundRole());
}

// Draws @p widget with another text. Returns false for a widget of another kind.
bool Draw(QWidget& widget, const PlacedText& placed)
{
    if (auto* const label = qobject_cast<QLabel*>(&widget))
        DrawLabel(*label, placed);
    else if (auto* const push = qobject_cast<QPushButton*>(&widget))
        DrawButton(*push, QStyle::CE_PushButton, placed.text);
    else if (auto* const check = qobject_cast<QCheckBox*>(&widget))
        DrawButton(*check, QStyle::CE_CheckBox, placed.text);
    else if (auto* const radio = qobject_cast<QRadioButton*>(&widget))
        DrawButton(*radio, QStyle::CE_RadioButton, placed.text);
    else if (auto* const box = qobject_cast<QGroupBox*>(&widget))
        DrawBox(*box, placed.text);
    else
        return false;
    return true;
}

bool CanElide(const QWidget& widget)
{
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    return label == nullptr || !label->wordWrap();
}

// Watches the widgets of a form, which owns it.
class ElidedTexts : public QObject
{
    Q_OBJECT

public:
    explicit ElidedTexts(QWidget& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void UpdateToolTips(QWidget& widget);
    QString ToolTipFor(const QString& cutText, const QString& present, const QWidget& widget,
                       int section = -1);
    bool PaintElided(QWidget& widget) const;
    bool HidesToolTip(const QWidget& widget, const QPoint& mouse) const;

    // Those that this object has set, by widget and column.
    QHash<QPair<const QWidget*, int>, QString> m_toolTips;
};

ElidedTexts::ElidedTexts(QWidget& form)
    : QObject(&form)
{
    const QList<QWidget*> widgets = form.findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        auto* const header = qobject_cast<QHeaderView*>(widget);
        if (header != nullptr && header->orientation() == Qt::Horizontal) {
            header->setTextElideMode(Qt::ElideRight);
            header->viewport()->installEventFilter(this);
        } else if (qobject_cast<QLabel*>(widget) != nullptr ||
                   qobject_cast<QAbstractButton*>(widget) != nullptr ||
                   qobject_cast<QGroupBox*>(widget) != nullptr) {
            widget->installEventFilter(this);
        }
    }
}

bool ElidedTexts::eventFilter(QObject* watched, QEvent* event)
{
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr)
        return false;
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Resize:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        UpdateToolTips(*widget);
        return false;
    case QEvent::Paint:
        UpdateToolTips(*widget); // its text or a widget around it may have changed
        return PaintElided(*widget);
    case QEvent::ToolTip:
        if (!HidesToolTip(*widget, static_cast<QHelpEvent*>(event)->pos()))
            return false;
        event->ignore();
        return true;
    default:
        return false;
    }
}

void ElidedTexts::UpdateToolTips(QWidget& widget)
{
    const auto* const header = qobject_cast<const QHeaderView*>(widget.parentWidget());
    if (header == nullptr) {
        const PlacedText placed = tarn::TextIn(widget);
        const QString cut = tarn::IsCut(widget, placed) ? placed.text : QString();
        const QString toolTip = ToolTipFor(cut, widget.toolTip(), widget);
        if (toolTip != widget.toolTip())
            widget.setToolTip(toolTip);
        return;
    }
    QAbstractItemModel& model = *header->model();
    for (int section = 0; section < header->count(); ++section) {
        const auto data = [&](int role) {
            return model.headerData(section, Qt::Horizontal, role).toString();
        };
        const QString cut = tarn::IsCut(*header, section) ? data(Qt::DisplayRole) : QString();
        const QString present = data(Qt::ToolTipRole);
        const QString toolTip = ToolTipFor(cut, present, widget, section);
        if (toolTip != present)
            model.setHeaderData(section, Qt::Horizontal, toolTip, Qt::ToolTipRole);
    }
}

// A tool tip that is present and that somebody else has set stays.
QString ElidedTexts::ToolTipFor(const QString& cutText, const QString& present,
                                const QWidget& widget, int section)
{
    QString& own = m_toolTips[{&widget, section}];
    if (!present.isEmpty() && present != own)
        return present;
    own = ToolTipOf(cutText);
    return own;
}

bool ElidedTexts::PaintElided(QWidget& widget) const
{
    const PlacedText placed = tarn::TextIn(widget);
    if (!tarn::IsCut(widget, placed) || !CanElide(widget))
        return false;
    const QFontMetrics metrics = widget.fontMetrics();
    // A text whose letters all show may lack only the gap that follows the last one.
    const QRect letters = metrics.tightBoundingRect(placed.text);
    if (letters.x() + letters.width() <= placed.place.width())
        return false;
    const QString elided =
        metrics.elidedText(placed.text, Qt::ElideRight, placed.place.width(), Qt::TextShowMnemonic);
    // Cut letters say more than an ellipsis alone.
    return elided.size() > 1 && Draw(widget, {elided, placed.place});
}

// The tool tip of a title is not that of the group below it.
bool ElidedTexts::HidesToolTip(const QWidget& widget, const QPoint& mouse) const
{
    return qobject_cast<const QGroupBox*>(&widget) != nullptr &&
           widget.toolTip() == m_toolTips.value({&widget, -1}) &&
           !tarn::TextIn(widget).place.contains(mouse);
}

} // namespace

void tarn::ElideTexts(QWidget& form)
{
    new ElidedTexts(form);
}

#include "ElidedTexts.moc"
