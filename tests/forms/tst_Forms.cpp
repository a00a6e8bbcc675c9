#include "TestCase.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QSet>

// Checks that apply to all forms; the test of each dialog covers its own form.
class tst_Forms : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryFormHasTheNameOfItsClass_data() { AddForms(); }
    void EveryFormHasTheNameOfItsClass();
    void EveryFormIsHeldByOneDialog_data() { AddForms(); }
    void EveryFormIsHeldByOneDialog();
    void ObjectNamesAreUnique_data() { AddForms(); }
    void ObjectNamesAreUnique();
    void TabStopsNameWidgetsOfTheForm_data() { AddForms(); }
    void TabStopsNameWidgetsOfTheForm();
    void EnterPressesNoButtonBesideATable_data() { AddForms(); }
    void EnterPressesNoButtonBesideATable();

private:
    static void AddForms();
    static QDomElement Root(const QString& form);
    static QString Property(const QDomElement& widget, const QString& name);
};

void tst_Forms::AddForms()
{
    QTest::addColumn<QString>("form");
    const QDir directory(SourcePath("forms"));
    const QStringList files = directory.entryList({"*.ui"});
    QVERIFY(!files.isEmpty());
    for (const QString& file : files)
        QTest::newRow(qPrintable(file)) << QFileInfo(file).completeBaseName();
}

QDomElement tst_Forms::Root(const QString& form)
{
    QFile file(SourcePath("forms/%1.ui").arg(form));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        FailTest(file.fileName() + " cannot be read");
    return document.documentElement();
}

QString tst_Forms::Property(const QDomElement& widget, const QString& name)
{
    for (QDomElement property = widget.firstChildElement("property"); !property.isNull();
         property = property.nextSiblingElement("property")) {
        if (property.attribute("name") == name)
            return property.text();
    }
    return QString();
}

void tst_Forms::EveryFormHasTheNameOfItsClass()
{
    QFETCH(QString, form);
    const QDomElement root = Root(form);
    QCOMPARE(root.firstChildElement("class").text(), form);
    QVERIFY(!root.firstChildElement("widget").attribute("name").isEmpty());
}

void tst_Forms::EveryFormIsHeldByOneDialog()
{
    QFETCH(QString, form);
    const QByteArray include = "#include \"ui_" + form.toLatin1() + ".h\"";
    QStringList holders;
    for (const char* const folder : {"common", "design", "analysis", "geometry", "solver"}) {
        const QDir directory(SourcePath(folder));
        const QStringList headers = directory.entryList({"*.h"});
        for (const QString& header : headers) {
            QFile file(directory.filePath(header));
            QVERIFY(file.open(QIODevice::ReadOnly));
            if (file.readAll().contains(include))
                holders << header;
        }
    }
    QVERIFY2(holders.size() == 1, qPrintable(holders.join(' ')));
}

void tst_Forms::ObjectNamesAreUnique()
{
    QFETCH(QString, form);
    QSet<QString> names;
    for (const char* const kind : {"widget", "layout", "spacer"}) {
        const QDomNodeList elements = Root(form).elementsByTagName(kind);
        for (int i = 0; i < elements.size(); ++i) {
            const QString name = elements.at(i).toElement().attribute("name");
            QVERIFY2(!name.isEmpty() && !names.contains(name), qPrintable(name));
            names.insert(name);
        }
    }
}

void tst_Forms::TabStopsNameWidgetsOfTheForm()
{
    QFETCH(QString, form);
    const QDomElement root = Root(form);
    QSet<QString> widgets;
    const QDomNodeList elements = root.elementsByTagName("widget");
    for (int i = 0; i < elements.size(); ++i)
        widgets.insert(elements.at(i).toElement().attribute("name"));
    const QDomNodeList stops = root.elementsByTagName("tabstop");
    for (int i = 0; i < stops.size(); ++i)
        QVERIFY2(widgets.contains(stops.at(i).toElement().text()),
                 qPrintable(stops.at(i).toElement().text()));
}

void tst_Forms::EnterPressesNoButtonBesideATable()
{
    QFETCH(QString, form);
    const QDomElement root = Root(form);
    const QDomNodeList elements = root.elementsByTagName("widget");
    bool hasTable = false;
    QStringList buttons;
    for (int i = 0; i < elements.size(); ++i) {
        const QDomElement widget = elements.at(i).toElement();
        hasTable = hasTable || widget.attribute("class") == "QTableWidget";
        if (widget.attribute("class") == "QPushButton" &&
            (Property(widget, "autoDefault") != "false" || Property(widget, "default") == "true"))
            buttons << widget.attribute("name");
    }
    if (hasTable)
        QVERIFY2(buttons.isEmpty(), qPrintable(buttons.join(' ')));
}

TARN_TEST_MAIN(tst_Forms)
#include "tst_Forms.moc"
