#include "Bodies.h"
#include "StepError.h"
#include "StepText.h"
#include "TestCase.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <QRegularExpression>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Shape.hxx>

class tst_StepCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ASoundFileIsRead();
    void OnlyClosedSolidsAreRead_data();
    void OnlyClosedSolidsAreRead();
    void AFileThatLacksAnEntityIsRefused_data();
    void AFileThatLacksAnEntityIsRefused();
    void AnEntityDefinedTwiceIsRefused();
    void TextsAreNotReferences();
    void AnUnknownSurfaceIsRefused();
    void AFaceThatIsLeftOutIsRefused();
};

namespace {

TopoDS_Shape BoxBody()
{
    return BRepPrimAPI_MakeBox(10.0, 10.0, 10.0).Shape();
}

TopoDS_Shape DrilledBox()
{
    return BRepAlgoAPI_Cut(BoxBody(), BRepPrimAPI_MakeCylinder(5.0, 10.0, 1.0).Shape()).Shape();
}

QString Reason(const QString& text)
{
    try {
        ShapeFromStep(text.toLatin1());
    } catch (const StepError& error) {
        return error.Reason();
    }
    return "it was read";
}

// One entity in each line.
QString DrilledBoxText()
{
    return QString::fromLatin1(StepText(DrilledBox())).remove("\n ");
}

} // namespace

Q_DECLARE_METATYPE(TopoDS_Shape)

void tst_StepCheck::ASoundFileIsRead()
{
    QCOMPARE(CountBodies(ShapeFromStep(DrilledBoxText().toLatin1())), 1);
    QCOMPARE(CountBodies(ShapeFromStep(StepText(Compound({BoxBody(), DrilledBox()})))), 2);
}

void tst_StepCheck::OnlyClosedSolidsAreRead_data()
{
    QTest::addColumn<TopoDS_Shape>("shape");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const TopoDS_Shape& shape, const char* reason) {
        QTest::newRow(name) << shape << QString(reason);
    };
    const auto first = [](TopAbs_ShapeEnum type) {
        return TopExp_Explorer(BoxBody(), type).Current();
    };
    const char* const Rest = ", but only closed solids can be used";
    row("a shell", first(TopAbs_SHELL), QByteArray("its shape 1 is a shell") + Rest);
    row("a face", first(TopAbs_FACE), QByteArray("its shape 1 is a shell") + Rest);
    row("an edge", first(TopAbs_EDGE), QByteArray("its shape 1 is an edge") + Rest);
    row("an edge behind two bodies", Compound({BoxBody(), DrilledBox(), first(TopAbs_EDGE)}),
        QByteArray("its shape 3 is an edge") + Rest);
}

void tst_StepCheck::OnlyClosedSolidsAreRead()
{
    QFETCH(TopoDS_Shape, shape);
    QTEST(Reason(QString::fromLatin1(StepText(shape))), "reason");
}

void tst_StepCheck::AFileThatLacksAnEntityIsRefused_data()
{
    QTest::addColumn<QString>("type");
    for (const char* const type :
         {"ADVANCED_FACE", "CYLINDRICAL_SURFACE", "PLANE", "FACE_BOUND", "EDGE_LOOP",
          "ORIENTED_EDGE", "EDGE_CURVE", "VERTEX_POINT", "CIRCLE", "LINE", "VECTOR", "DIRECTION",
          "CARTESIAN_POINT", "AXIS2_PLACEMENT_3D", "CLOSED_SHELL", "MANIFOLD_SOLID_BREP"})
        QTest::newRow(type) << QString(type);
}

void tst_StepCheck::AFileThatLacksAnEntityIsRefused()
{
    QFETCH(QString, type);
    QString text = DrilledBoxText();
    const QRegularExpression entity("\n#\\d+ = " + type + "\\([^;]*;");
    const QRegularExpressionMatch match = entity.match(text);
    QVERIFY(match.hasMatch());
    text.remove(match.capturedStart(), match.capturedLength());
    QCOMPARE(Reason(text), QString("refers to entities that it does not contain"));
}

void tst_StepCheck::AnEntityDefinedTwiceIsRefused()
{
    const QString text = DrilledBoxText();
    const int second = text.indexOf("\n#2 = ");
    const int third = text.indexOf("\n#3 = ");
    QCOMPARE(Reason(QString(text).insert(third, text.mid(second, third - second))),
             QString("defines the entity #2 twice"));
}

void tst_StepCheck::TextsAreNotReferences()
{
    QString text = DrilledBoxText();
    text.replace("ADVANCED_FACE('',", "ADVANCED_FACE('#99999 ''; #2 = X',/* #88888; #2 = Y */");
    QCOMPARE(CountBodies(ShapeFromStep(text.toLatin1())), 1);
}

void tst_StepCheck::AnUnknownSurfaceIsRefused()
{
    const QString text = DrilledBoxText().replace("CYLINDRICAL_SURFACE", "UNKNOWN_SURFACE");
    const QString reason = Reason(text);
    const QRegularExpression expected(
        "^its entity #\\d+ cannot be read: Parameter n0\\.3 \\(face_geometry\\) : Entity has "
        "illegal type$");
    QVERIFY2(expected.match(reason).hasMatch(), qPrintable(reason));
}

void tst_StepCheck::AFaceThatIsLeftOutIsRefused()
{
    QString text = DrilledBoxText();
    static const QRegularExpression firstFace("(CLOSED_SHELL\\('',\\()#\\d+,");
    QVERIFY(text.contains(firstFace));
    QCOMPARE(Reason(text.replace(firstFace, "\\1")),
             QString("its shape 1 is a shell, but only closed solids can be used"));
}

TARN_TEST_MAIN(tst_StepCheck)
#include "tst_StepCheck.moc"
