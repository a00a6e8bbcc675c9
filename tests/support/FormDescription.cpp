#include "FormDescription.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QValidator>

namespace {

bool IsNamedByTheForm(const QObject& object)
{
    // The scroll buttons are those of tab bars.
    return !object.objectName().isEmpty() &&
           !object.objectName().startsWith(QLatin1String("qt_")) &&
           !object.objectName().startsWith(QLatin1String("Scroll"));
}

QString ClassOf(const QObject& object)
{
    return QString::fromLatin1(object.metaObject()->className());
}

QString SizeText(const QSize& size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

// Such as gridLayout[0,1], hboxLayout[2] or, where it spans several cells, gridLayout[0,1 1x3].
QString PlaceInLayout(const QLayout& layout, int index)
{
    const auto* const grid = qobject_cast<const QGridLayout*>(&layout);
    if (grid == nullptr)
        return QStringLiteral("%1[%2]").arg(layout.objectName()).arg(index);
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    QString cell = QStringLiteral("%1,%2").arg(row).arg(column);
    if (rows != 1 || columns != 1)
        cell += QStringLiteral(" %1x%2").arg(rows).arg(columns);
    return QStringLiteral("%1[%2]").arg(layout.objectName(), cell);
}

QString Place(QWidget& widget)
{
    const QList<QLayout*> layouts = widget.parentWidget()->findChildren<QLayout*>();
    for (const QLayout* const layout : layouts) {
        if (layout->indexOf(&widget) >= 0 && !layout->objectName().isEmpty())
            return PlaceInLayout(*layout, layout->indexOf(&widget));
    }
    return QStringLiteral("%1,%2 %3").arg(widget.x()).arg(widget.y()).arg(SizeText(widget.size()));
}

QString Traits(const QWidget& widget)
{
    QString traits;
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && label->buddy() != nullptr)
        traits += QStringLiteral(", for ") + label->buddy()->objectName();
    if (widget.property("checked").toBool())
        traits += QStringLiteral(", checked");
    if (!widget.isEnabled())
        traits += QStringLiteral(", disabled");
    const auto* const edit = qobject_cast<const QLineEdit*>(&widget);
    if (edit != nullptr && edit->isReadOnly())
        traits += QStringLiteral(", read-only");
    if (edit != nullptr && edit->validator() != nullptr)
        traits += QStringLiteral(", with ") + ClassOf(*edit->validator());
    return traits;
}

QStringList DescribeLayout(const QLayout& layout)
{
    const QMargins margins = layout.contentsMargins();
    QStringList lines = {QStringLiteral("%1 %2: spacing %3, margins %4 %5 %6 %7")
                             .arg(ClassOf(layout), layout.objectName())
                             .arg(layout.spacing())
                             .arg(margins.left())
                             .arg(margins.top())
                             .arg(margins.right())
                             .arg(margins.bottom())};
    for (int i = 0; i < layout.count(); ++i) {
        QSpacerItem* const spacer = layout.itemAt(i)->spacerItem();
        if (spacer == nullptr)
            continue;
        const bool isHorizontal = spacer->expandingDirections() == Qt::Horizontal;
        lines << QStringLiteral("QSpacerItem at %1: %2, %3")
                     .arg(PlaceInLayout(layout, i), SizeText(spacer->sizeHint()),
                          isHorizontal ? QStringLiteral("horizontal") : QStringLiteral("vertical"));
    }
    return lines;
}

void AddHeaderTexts(const QTableWidget& table, QStringList& texts)
{
    for (int column = 0; column < table.columnCount(); ++column) {
        if (const QTableWidgetItem* const item = table.horizontalHeaderItem(column))
            texts << item->text();
    }
}

} // namespace

QString ShownText(const QWidget& widget)
{
    const QVariant title = widget.property("title");
    return title.isValid() ? title.toString() : widget.property("text").toString();
}

QStringList WidgetNames(const QWidget& window)
{
    QStringList names;
    const QList<QWidget*> children = window.findChildren<QWidget*>();
    for (const QWidget* const child : children) {
        if (IsNamedByTheForm(*child))
            names << child->objectName();
    }
    names.sort();
    return names;
}

QStringList DescribeForm(const QWidget& form)
{
    QStringList lines;
    const QList<QWidget*> widgets = form.findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        if (!IsNamedByTheForm(*widget))
            continue;
        const QString name =
            QStringLiteral("%1 %2 in %3")
                .arg(ClassOf(*widget), widget->objectName(), widget->parentWidget()->objectName());
        const QString text = QStringLiteral(": ") + ShownText(*widget) + Traits(*widget);
        lines << name + text << name + QStringLiteral(" at ") + Place(*widget) + text;
    }
    const QList<QLayout*> layouts = form.findChildren<QLayout*>();
    for (const QLayout* const layout : layouts) {
        if (IsNamedByTheForm(*layout))
            lines << DescribeLayout(*layout);
    }
    return lines;
}

QStringList ShownTexts(const QWidget& form)
{
    QStringList texts = {form.windowTitle()};
    const QList<QWidget*> widgets = form.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        if (!IsNamedByTheForm(*widget))
            continue;
        texts << ShownText(*widget) << widget->accessibleName();
        if (const auto* const table = qobject_cast<const QTableWidget*>(widget))
            AddHeaderTexts(*table, texts);
        if (const auto* const tabs = qobject_cast<const QTabWidget*>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                texts << tabs->tabText(tab);
        }
    }
    texts.removeAll(QString());
    texts.removeDuplicates();
    texts.sort();
    return texts;
}

QStringList EnterButtons(const QDialog& dialog)
{
    QStringList names;
    const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
    for (const QPushButton* const button : buttons) {
        if (button->isDefault())
            names.prepend(button->objectName() + QLatin1Char('*'));
        else if (button->autoDefault())
            names.append(button->objectName());
    }
    return names;
}

QStringList OwnMethods(const QMetaObject& meta)
{
    static const char* const access[] = {"private", "protected", "public"};
    static const char* const kind[] = {"method", "signal", "slot", "constructor"};
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        methods << QStringLiteral("%1 %2 %3")
                       .arg(QString::fromLatin1(access[method.access()]),
                            QString::fromLatin1(kind[method.methodType()]),
                            QString::fromLatin1(method.methodSignature()));
    }
    return methods;
}
