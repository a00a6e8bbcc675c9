#include "MeshFile.h"
#include "TestCase.h"
#include "TestFiles.h"

class tst_MeshFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void NodesAndElementsAreRead();
    void TheMesherSLastTwoNodesOfATetrahedronAreExchanged();
    void NodesWithoutElementsAreLeftOut();
    void ShellsAreReadWithoutSolids();
    void AGermanLocaleReadsTheSameNumbers();
    void DamagedFilesAreRefused_data();
    void DamagedFilesAreRefused();
    void AFileThatIsCutShortIsRefused();
    void AMissingFileIsRefused();
};

namespace {

const QByteArray Start = "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n";

// One tetrahedron on body 3, one of its faces on face 4, one edge on edge 5, and a spare node.
const QByteArray Nodes = "$Nodes\n11\n"
                         "1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 1\n"
                         "5 0.5 0 0\n6 .5 .5 0\n7 0 0.5 0\n8 0 0 5e-1\n"
                         "9 0 0.5 0.5\n12 0.5 0 0.5\n20 9 9 9\n"
                         "$EndNodes\n";
const QByteArray Solid = "$Elements\n4\n"
                         "1 15 2 0 1 20\n2 8 2 0 5 1 2 5\n3 9 2 0 4 1 2 3 5 6 7\n"
                         "4 11 2 0 3 1 2 3 4 5 6 7 8 9 12\n"
                         "$EndElements\n";

QString Refusal(const QByteArray& content)
{
    Put("a.msh", content);
    try {
        ReadMeshFile("a.msh");
        return "read";
    } catch (const MeshError& error) {
        return error.Reason();
    }
}

const QString Damaged = "The file of the mesh is damaged or not complete.";

} // namespace

void tst_MeshFile::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_MeshFile::NodesAndElementsAreRead()
{
    Put("a.msh", Start + "$PhysicalNames\n1\n2 1 \"a b\"\n$EndPhysicalNames\n" + Nodes + Solid);
    const Mesh mesh = ReadMeshFile("a.msh");
    QCOMPARE(mesh.nodes.size(), std::size_t(10));
    QVERIFY((mesh.nodes[5] == Vector3{0.5, 0.5, 0.0}));
    QVERIFY(mesh.IsSolid());
    QCOMPARE(mesh.tetrahedra.size(), std::size_t(1));
    QCOMPARE(mesh.tetrahedra[0].body, 3);
    QCOMPARE(mesh.facets.size(), std::size_t(1));
    QCOMPARE(mesh.facets[0].face, 4);
    QCOMPARE(mesh.facets[0].corners, 3);
    QVERIFY((mesh.facets[0].nodes == std::array<int, 8>{0, 1, 2, 4, 5, 6, 0, 0}));
    QCOMPARE(mesh.lines.size(), std::size_t(1));
    QCOMPARE(mesh.lines[0].edge, 5);
    QVERIFY((mesh.lines[0].nodes == std::array<int, 3>{0, 1, 4}));
    QCOMPARE(mesh.FreedomCount(), std::size_t(30));
}

void tst_MeshFile::TheMesherSLastTwoNodesOfATetrahedronAreExchanged()
{
    Put("a.msh", Start + Nodes + Solid);
    const Mesh mesh = ReadMeshFile("a.msh");
    QVERIFY((mesh.tetrahedra[0].nodes == std::array<int, 10>{0, 1, 2, 3, 4, 5, 6, 7, 9, 8}));
    QVERIFY((mesh.nodes[9] == Vector3{0.5, 0.0, 0.5}));
}

void tst_MeshFile::NodesWithoutElementsAreLeftOut()
{
    Put("a.msh", Start + Nodes + "$Elements\n2\n1 9 2 0 4 1 3 4 7 9 8\n2 8 2 0 5 1 2 5\n" +
                     "$EndElements\n");
    const Mesh mesh = ReadMeshFile("a.msh");
    QCOMPARE(mesh.nodes.size(), std::size_t(6));
    QVERIFY((mesh.facets[0].nodes == std::array<int, 8>{0, 1, 2, 3, 5, 4, 0, 0}));
    QVERIFY(mesh.lines.empty());
}

void tst_MeshFile::ShellsAreReadWithoutSolids()
{
    Put("a.msh", Start + Nodes + "$Elements\n1\n1 16 3 0 4 1 1 2 3 4 5 6 9 8\n$EndElements\n");
    const Mesh mesh = ReadMeshFile("a.msh");
    QVERIFY(!mesh.IsSolid());
    QCOMPARE(mesh.ElementCount(), std::size_t(1));
    QCOMPARE(mesh.facets[0].corners, 4);
    QCOMPARE(mesh.FreedomCount(), std::size_t(48));
}

void tst_MeshFile::AGermanLocaleReadsTheSameNumbers()
{
    UseLocale("de_DE.UTF-8");
    Put("a.msh", Start + Nodes + Solid);
    QCOMPARE(ReadMeshFile("a.msh").nodes[4][0], 0.5);
}

void tst_MeshFile::DamagedFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const auto changed = [](QByteArray from, QByteArray to) {
        QByteArray content = Start + Nodes + Solid;
        return content.replace(from, to);
    };
    NewRow("empty", QByteArray(), Damaged);
    NewRow("binary", QByteArray("\0\xff\x01", 3), Damaged);
    NewRow("newer version", changed("2.2 0 8", "4.1 0 8"), Damaged);
    NewRow("binary format", changed("2.2 0 8", "2.2 1 8"), Damaged);
    NewRow("no nodes", Start + Solid, Damaged);
    NewRow("no end of a section", Start + "$PhysicalNames\n1\n", Damaged);
    NewRow("huge count", changed("$Nodes\n11", "$Nodes\n2000000000"), Damaged);
    NewRow("count beyond all numbers", changed("$Nodes\n11", "$Nodes\n99999999999999999999"),
           Damaged);
    NewRow("count below 0", changed("$Nodes\n11", "$Nodes\n-11"), Damaged);
    NewRow("fewer nodes than counted", changed("$Nodes\n11", "$Nodes\n12"), Damaged);
    NewRow("more nodes than counted", changed("$Nodes\n11", "$Nodes\n10"), Damaged);
    NewRow("node twice", changed("\n2 1 0 0\n", "\n1 1 0 0\n"), Damaged);
    NewRow("node 0", changed("\n2 1 0 0\n", "\n0 1 0 0\n"), Damaged);
    NewRow("node far away", changed("\n20 9", "\n2000000000 9"), Damaged);
    NewRow("comma", changed("2 1 0 0\n", "2 1,5 0 0\n"), Damaged);
    NewRow("not a number", changed("2 1 0 0\n", "2 nan 0 0\n"), Damaged);
    NewRow("infinite", changed("2 1 0 0\n", "2 inf 0 0\n"), Damaged);
    NewRow("too large", changed("2 1 0 0\n", "2 1e999 0 0\n"), Damaged);
    NewRow("unknown node", changed("1 2 5\n", "1 13 5\n"), Damaged);
    NewRow("node below 0", changed("1 2 5\n", "1 -2 5\n"), Damaged);
    NewRow("tags below 0", changed("2 8 2 0", "2 8 -2 0"), Damaged);
    NewRow("too many tags", changed("2 8 2 0", "2 8 2000000000 0"), Damaged);
    NewRow("first order", changed("2 8 2 0 5 1 2 5", "2 1 2 0 5 1 2"),
           QString("The mesh has elements of the unknown kind 1."));
    NewRow("no elements", Start + Nodes + "$Elements\n1\n1 15 2 0 1 20\n$EndElements\n",
           QString("The mesh has no elements."));
}

void tst_MeshFile::DamagedFilesAreRefused()
{
    QFETCH(QByteArray, content);
    QTEST(Refusal(content), "reason");
}

void tst_MeshFile::AFileThatIsCutShortIsRefused()
{
    const QByteArray whole = Start + Nodes + Solid;
    QCOMPARE(Refusal(whole), QString("read"));
    // Without the last line feed it is still whole.
    for (int length = 0; length < whole.size() - 1; ++length)
        QCOMPARE(Refusal(whole.left(length)), Damaged);
}

void tst_MeshFile::AMissingFileIsRefused()
{
    try {
        ReadMeshFile("none.msh");
        QFAIL("read");
    } catch (const MeshError& error) {
        QVERIFY2(error.Reason().startsWith("The file of the mesh cannot be opened"),
                 qPrintable(error.Reason()));
    }
}

TARN_TEST_MAIN(tst_MeshFile)
#include "tst_MeshFile.moc"
