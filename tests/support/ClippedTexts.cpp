#include "ClippedTexts.h"

#include "PlacedText.h"

#include <QHeaderView>
#include <QTabBar>
#include <QVector>

namespace {

struct Clipped
{
    QString place;
    QString text;
    QString toolTip;
};

void AddSections(const QHeaderView& header, QVector<Clipped>& clipped)
{
    for (int section = 0; section < header.count(); ++section) {
        if (!tarn::IsCut(header, section))
            continue;
        const auto data = [&header, section](int role) {
            return header.model()->headerData(section, Qt::Horizontal, role).toString();
        };
        const QString place = QStringLiteral("QHeaderView of %1, section %2");
        clipped.append({place.arg(header.parentWidget()->objectName()).arg(section),
                        data(Qt::DisplayRole), data(Qt::ToolTipRole)});
    }
}

void AddTabs(const QTabBar& tabs, QVector<Clipped>& clipped)
{
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (!tabs.rect().contains(tabs.tabRect(tab)))
            clipped.append({QStringLiteral("QTabBar of %1, tab %2")
                                .arg(tabs.parentWidget()->objectName())
                                .arg(tab),
                            tabs.tabText(tab), tabs.tabToolTip(tab)});
    }
}

QVector<Clipped> AllClipped(const QWidget& window)
{
    QVector<Clipped> clipped;
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
        const tarn::PlacedText placed = tarn::TextIn(*widget);
        if (tarn::IsCut(*widget, placed))
            clipped.append(
                {QStringLiteral("%1 %2").arg(QString::fromLatin1(widget->metaObject()->className()),
                                             widget->objectName()),
                 placed.text, widget->toolTip()});
    }
    return clipped;
}

} // namespace

QMap<QString, QString> ClippedTexts(const QWidget& window)
{
    QMap<QString, QString> texts;
    const QVector<Clipped> all = AllClipped(window);
    for (const Clipped& clipped : all)
        texts[clipped.place] = clipped.text;
    return texts;
}

QMap<QString, QString> TextsWithoutToolTip(const QWidget& window)
{
    QMap<QString, QString> texts;
    const QVector<Clipped> all = AllClipped(window);
    for (const Clipped& clipped : all) {
        if (clipped.toolTip != clipped.text)
            texts[clipped.place] = clipped.text;
    }
    return texts;
}
