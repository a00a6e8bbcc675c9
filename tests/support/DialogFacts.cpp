#include "DialogFacts.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QTest>

QString ShownText(const QWidget& widget)
{
    const QVariant title = widget.property("title");
    return title.isValid() ? title.toString() : widget.property("text").toString();
}

void AddFormColumns()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("checked");
}

void CompareFormRow(const QWidget& dialog)
{
    const auto* const widget =
        dialog.findChild<QWidget*>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY2(widget != nullptr, qPrintable(FormWidgets(dialog).join(QStringLiteral(", "))));
    QFETCH(QString, type);
    QFETCH(QString, parent);
    QFETCH(QRect, geometry);
    QFETCH(QString, text);
    QFETCH(bool, enabled);
    QFETCH(bool, checked);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), type);
    QCOMPARE(widget->parentWidget()->objectName(), parent);
    if (!geometry.isEmpty())
        QCOMPARE(widget->geometry(), geometry);
    QCOMPARE(ShownText(*widget), text);
    QCOMPARE(widget->isEnabled(), enabled);
    QCOMPARE(widget->property("checked").toBool(), checked);
}

QStringList FormWidgets(const QWidget& dialog)
{
    QStringList names;
    const QList<QWidget*> children = dialog.findChildren<QWidget*>();
    for (const QWidget* const child : children) {
        if (!child->objectName().isEmpty() && !child->objectName().startsWith(QLatin1String("qt_")))
            names << child->objectName();
    }
    names.sort();
    return names;
}

void CompareWindow(const QDialog& dialog, const QString& name, const QString& title,
                   const QSize& size)
{
    const QDialog plain;
    QCOMPARE(dialog.objectName(), name);
    QCOMPARE(dialog.windowTitle(), title);
    QCOMPARE(dialog.size(), size);
    QCOMPARE(dialog.windowFlags(), plain.windowFlags());
    QCOMPARE(dialog.isModal(), false);
    for (const Qt::WidgetAttribute attribute :
         {Qt::WA_DeleteOnClose, Qt::WA_SetFont, Qt::WA_SetPalette, Qt::WA_QuitOnClose})
        QCOMPARE(dialog.testAttribute(attribute), plain.testAttribute(attribute));
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

TextRecorder::TextRecorder()
{
    QCoreApplication::installTranslator(this);
}

TextRecorder::~TextRecorder()
{
    QCoreApplication::removeTranslator(this);
}

QStringList TextRecorder::TextsOf(const char* context) const
{
    QStringList texts = m_texts.value(context);
    texts.removeDuplicates();
    texts.sort();
    return texts;
}

QString TextRecorder::translate(const char* context, const char* text, const char*, int) const
{
    m_texts[context] << QString::fromUtf8(text);
    return QString();
}
