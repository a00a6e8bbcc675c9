#include "MaterialLibrary.h"
#include "TextRecorder.h"

#include <QLineEdit>

// The count of clones lives as long as the process, so one test function goes through all counts.

namespace {

struct Proposal
{
    int count;
    QString name;
    QString proposed;
};

const QVector<Proposal>& Proposals()
{
    static const QVector<Proposal> proposals = {// The first digit is appended.
                                                {0, "Steel", "Steel0"},
                                                {0, "A", "A0"},
                                                {0, "", "0"},
                                                // One digit replaces the last character.
                                                {1, "Steel0", "Steel1"},
                                                {1, "Steel", "Stee1"},
                                                {1, "A", "1"},
                                                {1, "", ""},
                                                {3, "Steel", "Stee3"},
                                                {9, "Steel0", "Steel9"},
                                                {9, "Steel", "Stee9"},
                                                // The first two digits do as well.
                                                {10, "Steel9", "Steel10"},
                                                {10, "Steel", "Stee10"},
                                                {10, "A", "10"},
                                                {10, "", ""},
                                                // From here on, they replace the last two.
                                                {11, "Steel10", "Steel11"},
                                                {11, "Steel", "Ste11"},
                                                {11, "AB", "11"},
                                                {11, "A", "A"},
                                                {11, "", ""},
                                                {99, "Steel10", "Steel99"},
                                                {99, "A", "A"},
                                                // So do three.
                                                {100, "Steel99", "Steel100"},
                                                {100, "Steel", "Ste100"},
                                                {100, "AB", "100"},
                                                {100, "A", "A"}};
    return proposals;
}

const QStringList BaseNames = {"Steel", "Steel0", "Steel9", "Steel10", "Steel99", "AB", "A", ""};

ShownBox Rename()
{
    return ShownBox::Notice("Warning", "Material rename!");
}

ShownBox TooMany()
{
    return ShownBox::Notice("Warning", "Too many add");
}

void WriteBaseMaterials()
{
    QVector<QStringList> materials;
    for (const QString& name : BaseNames)
        materials << QStringList({name, "1e11", "0.34", "8800"});
    WriteMaterials(UserFile, materials);
}

} // namespace

class tst_KVMaterialLibraryClones : public With<DialogTest, TemporaryDirectory, EmptyAnalysisStores>
{
    Q_OBJECT

private Q_SLOTS:
    void ClonesAreProposedAndCounted();

private:
    void CountUpTo(int count);
    void TheFirstCloneIsEnteredLikeAnAddition();
    void AProposedNameThatIsHeldIsRefused();
    void NoMoreThan101ClonesAreMade();
    QString ProposedName(QDialog& library, const QString& name);
};

/// The name proposed for a clone of the given material; the clone is then cancelled.
QString tst_KVMaterialLibraryClones::ProposedName(QDialog& library, const QString& name)
{
    QString proposed = "nothing was proposed";
    Then([&](QDialog& editor) {
        proposed = Find<QLineEdit>(editor, "lineEditName").text();
        Click(editor, "pushButton_2");
    });
    ClickRow(Table(library), BaseNames.indexOf(name));
    Click(library, "pushButton_3");
    return proposed;
}

void tst_KVMaterialLibraryClones::ClonesAreProposedAndCounted()
{
    WriteBaseMaterials();
    // Each part continues the count of the one before.
    TheFirstCloneIsEnteredLikeAnAddition();
    CountUpTo(11);
    AProposedNameThatIsHeldIsRefused();
    CountUpTo(101);
    NoMoreThan101ClonesAreMade();
}

void tst_KVMaterialLibraryClones::TheFirstCloneIsEnteredLikeAnAddition()
{
    KVMaterialLibrary library;
    library.Reset();
    Then([&](QDialog& shown) {
        for (const Proposal& row : Proposals()) {
            // None of these is confirmed, so the count remains 0.
            if (row.count == 0)
                QCOMPARE(ProposedName(shown, row.name), row.proposed);
        }
        Then([&](QDialog& editor) {
            QCOMPARE(editor.parentWidget(), &shown);
            QCOMPARE(RowTexts(Table(editor), 0).at(1), "1e11");
            QCOMPARE(RowTexts(Table(editor), 1).at(1), "0.34");
            QCOMPARE(RowTexts(Table(editor), 2).at(1), "8800");
            Table(editor).item(1, 1)->setText("0.35");
            Click(editor, "pushButton");
        });
        ClickRow(Table(shown), BaseNames.indexOf("AB"));
        Click(shown, "pushButton_3");
        const int row = BaseNames.size();
        QCOMPARE(RowTexts(Table(shown), row), QStringList({"AB0", "1e11", "0.35", "8800"}));
        QCOMPARE(SelectedRows(Table(shown)), QVector<int>({row}));
        QCOMPARE(Store().GetMaterialInfo("AB0")->m_nType, int(MATERIAL_USER));
        QCOMPARE(Store().GetMaterialInfo("AB0")->m_strPoisson, "0.35");
        Click(shown, "pushButton_8");
    });
    library.exec();
}

/// Clones until the count is reached, and compares what is proposed on the way. The count goes on
/// in another dialog.
void tst_KVMaterialLibraryClones::CountUpTo(int count)
{
    KVMaterialLibrary library;
    library.Reset();
    Then([&](QDialog& shown) {
        for (int i = count == 11 ? 1 : 11; i < count && !QTest::currentTestFailed(); ++i) {
            for (const Proposal& row : Proposals()) {
                if (row.count == i)
                    QCOMPARE(ProposedName(shown, row.name), row.proposed);
            }
            Then([i](QDialog& editor) {
                Find<QLineEdit>(editor, "lineEditName").setText(QStringLiteral("clone %1").arg(i));
                Click(editor, "pushButton");
            });
            ClickRow(Table(shown), 0);
            Click(shown, "pushButton_3");
            QVERIFY(Store().GetMaterialInfo(QStringLiteral("clone %1").arg(i)) != nullptr);
        }
        Click(shown, "pushButton_8");
    });
    library.exec();
}

void tst_KVMaterialLibraryClones::AProposedNameThatIsHeldIsRefused()
{
    KVMaterialLibrary library;
    library.Reset();
    Then([&](QDialog& shown) {
        Then([](QDialog& editor) {
            QCOMPARE(Find<QLineEdit>(editor, "lineEditName").text(), "A");
            Click(editor, "pushButton");
            QVERIFY(editor.isVisible());
            Click(editor, "pushButton_2");
        });
        ClickRow(Table(shown), BaseNames.indexOf("A"));
        Click(shown, "pushButton_3");
        // The count is still 11.
        QCOMPARE(ProposedName(shown, "Steel"), "Ste11");
        Click(shown, "pushButton_8");
    });
    library.exec();
    QCOMPARE(Boxes(), ShownBoxes({Rename()}));
}

void tst_KVMaterialLibraryClones::NoMoreThan101ClonesAreMade()
{
    const TextRecorder recorder;
    KVMaterialLibrary library;
    library.Reset();
    const int materials = Store().MapDataRow();
    Then([&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        Click(shown, "pushButton_3");
        Click(shown, "pushButton_3");
        QVERIFY(shown.isVisible());
        Click(shown, "pushButton_8");
    });
    library.exec();
    QCOMPARE(Boxes(), ShownBoxes({Rename(), TooMany(), TooMany()}));
    QCOMPARE(Store().MapDataRow(), materials);
    QVERIFY(recorder.TextsOf("KVMaterialLibrary").contains("Too many add"));
}

TARN_TEST_MAIN(tst_KVMaterialLibraryClones)
#include "tst_KVMaterialLibraryClones.moc"
