#include "MeshEstimate.h"
#include "Meshed.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>

class tst_MeshEstimate : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AMeshThatFitsHasNoProblem();
    void TooManyFreedomsAreRefusedWithASizeThatFits_data();
    void TooManyFreedomsAreRefusedWithASizeThatFits();
    void TheEstimateIsNearTheMesh_data();
    void TheEstimateIsNearTheMesh();
};

void tst_MeshEstimate::AMeshThatFitsHasNoProblem()
{
    QCOMPARE(MeshEstimate::OfSolids(1e6).Problem(10.0, 2000000), QString());
    QCOMPARE(MeshEstimate::OfShells(1e6).Problem(10.0, 2000000), QString());
}

void tst_MeshEstimate::TooManyFreedomsAreRefusedWithASizeThatFits_data()
{
    QTest::addColumn<bool>("isSolid");
    QTest::addColumn<QString>("freedoms");
    QTest::addColumn<double>("fitting");
    NewRow("solid", true, QString("2.8e+08"), 5.2);
    NewRow("shell", false, QString("2.3e+07"), 3.4);
}

void tst_MeshEstimate::TooManyFreedomsAreRefusedWithASizeThatFits()
{
    QFETCH(bool, isSolid);
    QFETCH(QString, freedoms);
    QFETCH(double, fitting);
    const MeshEstimate estimate =
        isSolid ? MeshEstimate::OfSolids(1e7) : MeshEstimate::OfShells(1e6);
    QCOMPARE(estimate.Problem(1.0, 2000000),
             QString("The mesh of size 1 mm would have about %1 degrees of freedom; the limit is "
                     "2000000. A mesh size of %2 mm would fit.")
                 .arg(freedoms)
                 .arg(fitting));
    QCOMPARE(estimate.Problem(fitting, 2000000), QString());
}

void tst_MeshEstimate::TheEstimateIsNearTheMesh_data()
{
    QTest::addColumn<bool>("isSolid");
    NewRow("solid", true);
    NewRow("shell", false);
}

void tst_MeshEstimate::TheEstimateIsNearTheMesh()
{
    QFETCH(bool, isSolid);
    EnterTemporaryDirectory();
    MeshRequest request = OfSize(10.0);
    if (!isSolid)
        request.shellFaces = {1};
    const Mesh mesh = Meshed(BRepPrimAPI_MakeBox(100.0, 80.0, 60.0).Shape(), request);
    const MeshEstimate estimate =
        isSolid ? MeshEstimate::OfSolids(480000.0) : MeshEstimate::OfShells(4800.0);
    const double ratio = estimate.Freedoms(10.0) / double(mesh.FreedomCount());
    QVERIFY2(ratio > 0.6 && ratio < 1.6, qPrintable(QString::number(ratio)));
}

TARN_TEST_MAIN(tst_MeshEstimate)
#include "tst_MeshEstimate.moc"
