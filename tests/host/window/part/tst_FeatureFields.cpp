#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "FeatureFields.h"
#include "HostTestMain.h"
#include "MessageLevel.h"
#include "NewFeature.h"
#include "PartModel.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableWidget>

class tst_FeatureFields : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void NoFeatureHasNoRows();
    void NameInputsAndFieldsHaveARowEach();
    void OnlyTextsCanBeEdited();
    void ATypedTextChangesTheFeature();
    void ATextWithoutAUsableValueIsKeptAndShowsTheReason_data();
    void ATextWithoutAUsableValueIsKeptAndShowsTheReason();
    void ValuesFollowTheParameters();
    void ATypedNameRenamesTheFeature();
    void TypedInputsAreTaken();
    void ARefusedTextStaysAndIsReported_data();
    void ARefusedTextStaysAndIsReported();
    void UndoIsShown();
    void AnImportShowsItsFile();
    void ADeletedFeatureIsShownNoLonger();
    void EditingStartsInTheFirstField();
    void AHalfTypedTextBelongsToItsOwnFeature();
    void WithoutAFeatureTheDockSaysWhatToDo();
    void TheCornersOfAProfileAreEdited();
    void FacesAndEdgesAreShownAndTyped();
    void ATextThatIsNoReferenceIsRefused_data();
    void ATextThatIsNoReferenceIsRefused();
};

namespace {

struct ShownFields
{
    ShownFields()
    {
        FeatureList list;
        list.Append(NewFeature("plate", "box", {}, {{"x", "4 * 5"}}));
        list.Append(NewFeature("pin", "cylinder", {}, {{"radius", "2"}}));
        list.Append(NewFeature("body", "fuse", {"plate", "pin"}));
        model.Open(list, {}, {});
        dock.resize(500, 400);
        dock.show();
    }

    QTableWidget& Table() const { return Find<QTableWidget>(dock, "fieldTable"); }

    QTableWidgetItem& Cell(const QString& label, int column) const
    {
        for (int row = 0; row < Table().rowCount(); ++row) {
            if (Table().item(row, FeatureFields::LabelColumn)->text() == label)
                return *Table().item(row, column);
        }
        FailTest(QString("There is no field \"%1\"").arg(label));
    }
    QString Text(const QString& label) const
    {
        return Cell(label, FeatureFields::TextColumn).text();
    }
    QString Value(const QString& label) const
    {
        return Cell(label, FeatureFields::ValueColumn).text();
    }
    bool IsMarked(const QString& label) const
    {
        return Cell(label, FeatureFields::TextColumn).foreground().color() == QColor(Qt::red);
    }

    // As a user does: a click opens the editor, F2 where the cell is the current one, then the text
    // and Enter.
    void Type(const QString& label, const QString& text) const
    {
        QLineEdit* const edit = StartTyping(label, text);
        if (text.isEmpty())
            QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClick(edit, Qt::Key_Return);
        QCoreApplication::sendPostedEvents();
    }
    QLineEdit* StartTyping(const QString& label, const QString& text) const
    {
        QTableWidgetItem& cell = Cell(label, FeatureFields::TextColumn);
        if (Table().currentItem() == &cell)
            QTest::keyClick(&Table(), Qt::Key_F2);
        else
            QTest::mouseClick(Table().viewport(), Qt::LeftButton, {},
                              Table().visualItemRect(&cell).center());
        QLineEdit* edit = nullptr;
        const QList<QLineEdit*> edits = Table().viewport()->findChildren<QLineEdit*>();
        for (QLineEdit* const child : edits) {
            if (child->isVisible())
                edit = child;
        }
        if (edit == nullptr)
            FailTest(QString("There is no editor for \"%1\"").arg(label));
        edit->selectAll();
        QTest::keyClicks(edit, text);
        return edit;
    }

    const Feature& Stored(const QString& name) const
    {
        return model.Features().At(model.Features().Find(name));
    }

    EmptyDesignStores stores;
    PartModel model;
    FeatureFields dock{model, nullptr};
    QSignalSpy posted{DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage};
};

void SetParameter(const QString& name, double value)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    GlobalParaMeterMgr::AddParameter(name, record);
}

} // namespace

void tst_FeatureFields::NoFeatureHasNoRows()
{
    ShownFields shown;
    QCOMPARE(shown.Table().rowCount(), 0);
    shown.dock.ShowFeature("plate");
    QVERIFY(shown.Table().rowCount() > 0);
    shown.dock.ShowFeature("");
    QCOMPARE(shown.Table().rowCount(), 0);
}

void tst_FeatureFields::NameInputsAndFieldsHaveARowEach()
{
    ShownFields shown;
    shown.dock.ShowFeature("plate");
    QStringList rows;
    for (int row = 0; row < shown.Table().rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < shown.Table().columnCount(); ++column)
            cells << shown.Table().item(row, column)->text();
        rows << cells.join('|');
    }
    QCOMPARE(rows,
             QStringList({"Name|plate|", "Inputs||", "Size x|4 * 5|20 mm", "Size y|10|10 mm",
                          "Size z|10|10 mm", "Move x|0|0 mm", "Move y|0|0 mm", "Move z|0|0 mm",
                          "Turn about x|0|0°", "Turn about y|0|0°", "Turn about z|0|0°"}));
    shown.dock.ShowFeature("body");
    QCOMPARE(shown.Table().rowCount(), 2);
    QCOMPARE(shown.Text("Inputs"), QString("plate, pin"));
}

void tst_FeatureFields::OnlyTextsCanBeEdited()
{
    ShownFields shown;
    shown.dock.ShowFeature("plate");
    for (int row = 0; row < shown.Table().rowCount(); ++row) {
        for (int column = 0; column < shown.Table().columnCount(); ++column) {
            const QTableWidgetItem& item = *shown.Table().item(row, column);
            // A box is made of no other body.
            const bool isInputs = item.row() == 1;
            QCOMPARE(bool(item.flags() & Qt::ItemIsEditable),
                     column == FeatureFields::TextColumn && !isInputs);
        }
    }
    shown.dock.ShowFeature("body");
    QVERIFY(shown.Cell("Inputs", FeatureFields::TextColumn).flags() & Qt::ItemIsEditable);
}

void tst_FeatureFields::ATypedTextChangesTheFeature()
{
    ShownFields shown;
    shown.dock.ShowFeature("pin");
    shown.Type("Height", " 3 * 7 ");
    QCOMPARE(FieldText(shown.Stored("pin"), "height"), QString("3 * 7"));
    QCOMPARE(shown.Text("Height"), QString("3 * 7"));
    QCOMPARE(shown.Value("Height"), QString("21 mm"));
    QCOMPARE(shown.model.UndoStack().undoText(), QString("Change \"pin\""));
    shown.Type("Height", "3 * 7");
    QCOMPARE(shown.model.UndoStack().count(), 1);
    QCOMPARE(shown.posted.count(), 0);
}

void tst_FeatureFields::ATextWithoutAUsableValueIsKeptAndShowsTheReason_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("why");
    QTest::newRow("half typed") << "3 *"
                                << "no value"
                                << "";
    QTest::newRow("unknown name") << "nuts"
                                  << "no value"
                                  << "nuts";
    QTest::newRow("empty") << ""
                           << "no value"
                           << "";
    QTest::newRow("out of range") << "-3"
                                  << "-3 mm"
                                  << "Has to be from 0.0001 to 1000000 mm";
    QTest::newRow("infinite") << "1 / 0"
                              << "no value"
                              << "";
}

void tst_FeatureFields::ATextWithoutAUsableValueIsKeptAndShowsTheReason()
{
    QFETCH(QString, text);
    QFETCH(QString, value);
    QFETCH(QString, why);
    ShownFields shown;
    shown.dock.ShowFeature("pin");
    QVERIFY(!shown.IsMarked("Height"));
    shown.Type("Height", text);
    QCOMPARE(shown.Text("Height"), text);
    QCOMPARE(FieldText(shown.Stored("pin"), "height"), text);
    QCOMPARE(shown.Value("Height"), value);
    QVERIFY(shown.IsMarked("Height"));
    const QString toolTip = shown.Cell("Height", FeatureFields::TextColumn).toolTip();
    QVERIFY2(!toolTip.isEmpty() && toolTip.contains(why), qPrintable(toolTip));
    QCOMPARE(shown.model.FailedFeature(), QString("pin"));
    QVERIFY(!shown.IsMarked("Radius"));
    shown.Type("Height", "5");
    QVERIFY(!shown.IsMarked("Height"));
    QVERIFY(!shown.model.HasFailed());
}

void tst_FeatureFields::ValuesFollowTheParameters()
{
    ShownFields shown;
    SetParameter("size", 4.0);
    shown.dock.ShowFeature("pin");
    shown.Type("Height", "size + 1");
    QCOMPARE(shown.Value("Height"), QString("5 mm"));
    SetParameter("size", 6.0);
    shown.model.Rebuild();
    QCOMPARE(shown.Value("Height"), QString("7 mm"));
    QCOMPARE(shown.Text("Height"), QString("size + 1"));
}

void tst_FeatureFields::ATypedNameRenamesTheFeature()
{
    ShownFields shown;
    shown.dock.ShowFeature("pin");
    shown.Type("Name", "bolt");
    QCOMPARE(shown.model.Features().Find("bolt"), 1);
    QCOMPARE(shown.Stored("body").inputs, QStringList({"plate", "bolt"}));
    // It goes on showing the same feature.
    QCOMPARE(shown.Text("Name"), QString("bolt"));
    QCOMPARE(shown.Text("Radius"), QString("2"));
}

void tst_FeatureFields::TypedInputsAreTaken()
{
    ShownFields shown;
    shown.dock.ShowFeature("body");
    shown.Type("Inputs", "pin ,plate");
    QCOMPARE(shown.Stored("body").inputs, QStringList({"pin", "plate"}));
    QCOMPARE(shown.Text("Inputs"), QString("pin, plate"));
}

void tst_FeatureFields::ARefusedTextStaysAndIsReported_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");
    QTest::newRow("unknown input") << "Inputs"
                                   << "plate, nut";
    QTest::newRow("itself") << "Inputs"
                            << "plate, body";
    QTest::newRow("too few") << "Inputs"
                             << "plate";
    QTest::newRow("none") << "Inputs"
                          << "";
    QTest::newRow("twice") << "Inputs"
                           << "plate, plate";
    QTest::newRow("name taken") << "Name"
                                << "pin";
    QTest::newRow("no name") << "Name"
                             << "";
    QTest::newRow("name with comma") << "Name"
                                     << "a,b";
}

void tst_FeatureFields::ARefusedTextStaysAndIsReported()
{
    QFETCH(QString, label);
    QFETCH(QString, text);
    ShownFields shown;
    shown.dock.ShowFeature("body");
    const Feature before = shown.Stored("body");
    shown.Type(label, text);
    QVERIFY(shown.Stored("body") == before);
    QCOMPARE(shown.Text(label), text);
    QVERIFY(shown.IsMarked(label));
    QCOMPARE(shown.posted.count(), 1);
    QCOMPARE(shown.posted[0][0].toInt(), int(ErrorLevel));
    QCOMPARE(shown.Cell(label, FeatureFields::TextColumn).toolTip(), shown.posted[0][1].toString());
    // Corrected, it is taken.
    shown.Type(label, label == "Name" ? "whole" : "pin, plate");
    QVERIFY(!shown.IsMarked(label));
    QCOMPARE(shown.posted.count(), 1);
    QVERIFY(shown.model.UndoStack().canUndo());
}

void tst_FeatureFields::UndoIsShown()
{
    ShownFields shown;
    shown.dock.ShowFeature("pin");
    shown.Type("Height", "33");
    shown.model.UndoStack().undo();
    QCOMPARE(shown.Text("Height"), QString("10"));
    QCOMPARE(shown.Value("Height"), QString("10 mm"));
}

void tst_FeatureFields::AnImportShowsItsFile()
{
    ShownFields shown;
    Feature import = NewFeature("nut", "import");
    import.file = "nut.step";
    shown.model.Add(import);
    shown.dock.ShowFeature("nut");
    QCOMPARE(shown.Text("File"), QString("nut.step"));
    shown.Type("File", "other.step");
    QCOMPARE(shown.Stored("nut").file, QString("other.step"));
    shown.Type("File", "");
    QCOMPARE(shown.Stored("nut").file, QString("other.step"));
    QVERIFY(shown.IsMarked("File"));
}

void tst_FeatureFields::ADeletedFeatureIsShownNoLonger()
{
    ShownFields shown;
    shown.dock.ShowFeature("body");
    shown.model.Remove({"body"});
    QCOMPARE(shown.Table().rowCount(), 0);
}

void tst_FeatureFields::EditingStartsInTheFirstField()
{
    ShownFields shown;
    shown.dock.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.dock));
    shown.dock.ShowFeature("pin");
    shown.dock.StartEditing();
    QVERIFY(shown.Table().isAncestorOf(QApplication::focusWidget()) || shown.Table().hasFocus());
    QCOMPARE(shown.Table().currentRow(), 2);
    shown.dock.ShowFeature("body");
    shown.dock.StartEditing();
    QCOMPARE(shown.Table().currentItem()->text(), QString("plate, pin"));
}

void tst_FeatureFields::AHalfTypedTextBelongsToItsOwnFeature()
{
    // As when a menu adds a feature of the same kind, whose field has the very same text.
    ShownFields shown;
    shown.model.Add(NewFeature("other", "cylinder", {}, {{"radius", "2"}}));
    shown.dock.ShowFeature("pin");
    shown.StartTyping("Radius", "3");
    shown.dock.ShowFeature("other");
    QCOMPARE(shown.Text("Radius"), QString("2"));
    QCOMPARE(FieldText(shown.Stored("pin"), "radius"), QString("3"));
    QCOMPARE(FieldText(shown.Stored("other"), "radius"), QString("2"));
    // A feature that is gone takes its text with it.
    shown.StartTyping("Radius", "4");
    shown.model.UndoStack().undo();
    shown.model.UndoStack().undo();
    shown.dock.ShowFeature("pin");
    QCOMPARE(shown.Text("Radius"), QString("2"));
    QCOMPARE(shown.posted.count(), 0);
}

void tst_FeatureFields::WithoutAFeatureTheDockSaysWhatToDo()
{
    ShownFields shown;
    const auto& hint = Find<QLabel>(shown.dock, "fieldsHint");
    QVERIFY(hint.isVisible() && hint.text().contains("Select a feature"));
    QVERIFY(!shown.Table().isVisible());
    shown.dock.ShowFeature("plate");
    QVERIFY(!hint.isVisible());
    QVERIFY(shown.Table().isVisible());
}

void tst_FeatureFields::TheCornersOfAProfileAreEdited()
{
    ShownFields shown;
    shown.model.Add(NewFeature("sheet", "extrude"));
    shown.dock.ShowFeature("sheet");
    QCOMPARE(shown.Text("Corner 3"), QString("10; 10"));
    QCOMPARE(shown.Value("Corner 3"), QString("10; 10 mm"));
    shown.Type("Corner 3", "2 * 6; 10; 14; 5");
    QCOMPARE(shown.Value("Corner 3"), QString("12; 10; 14; 5 mm"));
    shown.Type("New corner", "-5; 5");
    QCOMPARE(int(shown.Stored("sheet").profile.size()), 5);
    QCOMPARE(shown.Text("Corner 5"), QString("-5; 5"));
    shown.Type("Corner 1", "");
    QCOMPARE(int(shown.Stored("sheet").profile.size()), 4);
    QCOMPARE(shown.Stored("sheet").profile[1].viaX, QString("14"));
    shown.Type("Corner 4", "nothing; 5");
    QVERIFY(shown.IsMarked("Corner 4"));
    QCOMPARE(shown.Value("Corner 4"), QString("no value"));
    shown.model.UndoStack().undo();
    QCOMPARE(shown.Text("Corner 4"), QString("-5; 5"));
}

void tst_FeatureFields::FacesAndEdgesAreShownAndTyped()
{
    ShownFields shown;
    shown.model.Add(NewFeature("round", "fillet", {"body"}));
    shown.dock.ShowFeature("round");
    QCOMPARE(shown.Text("At edges"), QString());
    shown.Type("At edges", "plate.zmax | plate.xmax; (0, 0, 5)");
    QCOMPARE(int(shown.Stored("round").edges.size()), 2);
    QCOMPARE(shown.Text("At edges"), QString("plate.zmax | plate.xmax; (0, 0, 5)"));
    shown.Type("At edges", "");
    QVERIFY(shown.Stored("round").edges.empty());
    shown.model.Add(NewFeature("image", "mirrorFace", {"round"}));
    shown.dock.ShowFeature("image");
    shown.Type("At face", "plate.xmin");
    QCOMPARE(shown.Stored("image").face->name, QString("plate.xmin"));
}

void tst_FeatureFields::ATextThatIsNoReferenceIsRefused_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    NewRow("edge", QString("fillet"), QString("At edges"), QString("plate.xmin"));
    NewRow("face", QString("mirrorFace"), QString("At face"), QString("(1, 2)"));
    NewRow("corner", QString("extrude"), QString("Corner 2"), QString("10"));
    NewRow("new corner", QString("revolve"), QString("New corner"), QString("1; 2; 3"));
}

void tst_FeatureFields::ATextThatIsNoReferenceIsRefused()
{
    QFETCH(QString, kind);
    QFETCH(QString, field);
    QFETCH(QString, text);
    ShownFields shown;
    const bool needsBody = kind == "fillet" || kind == "mirrorFace";
    shown.model.Add(
        NewFeature("new", kind.toUtf8(), needsBody ? QStringList("body") : QStringList()));
    shown.dock.ShowFeature("new");
    const Feature before = shown.Stored("new");
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    shown.Type(field, text);
    QVERIFY(shown.Stored("new") == before);
    QVERIFY(shown.IsMarked(field));
    QCOMPARE(posted.count(), 1);
    QVERIFY(posted[0][1].toString().contains(": write "));
}

TARN_HOST_TEST_MAIN(tst_FeatureFields)
#include "tst_FeatureFields.moc"
