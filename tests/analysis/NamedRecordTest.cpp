#include "NamedRecordTest.h"

#include "AttributeCommonMgr.h"
#include "FormDescription.h"
#include "TextRecorder.h"

#include <QLineEdit>

#include <utility>

namespace {

// Sets what nobody can type.
void SetName(const QDialog& editor, const QString& name)
{
    Find<QLineEdit>(editor, "lied_Name").setText(name);
}

} // namespace

NamedRecordChecks::NamedRecordChecks(FormFacts form, RecordFacts record)
    : With(std::move(form))
    , m_record(std::move(record))
{
}

void NamedRecordChecks::Register(const QByteArray& name)
{
    AttributeCommonMgr::GetInstance()->AddName(name.toStdString());
}

void NamedRecordChecks::CompareAfterEnter(QDialog& editor)
{
    FormChecks::CompareAfterEnter(editor);
    QCOMPARE(NameOf(editor), m_record.name);
}

// Confirms, and cancels if that is refused; returns the result of exec().
int NamedRecordChecks::Confirm(QDialog& editor)
{
    Then([this](QDialog& shown) {
        const int boxes = Boxes().size();
        Click(shown, "okButton");
        if (Boxes().size() > boxes)
            Click(shown, "cancelButton");
    });
    return editor.exec();
}

void NamedRecordChecks::MessagesAreTranslatedInTheContextOfTheClass()
{
    Register(QByteArray::fromStdString(m_record.name));
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    const TextRecorder recorder;
    QCOMPARE(Confirm(*editor), int(QDialog::Rejected));
    QCOMPARE(recorder.TextsOf(m_record.context), QStringList({m_record.refusal, "Warning"}));
}

void NamedRecordChecks::TheRecordIsInitiallyADefaultOne()
{
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    QCOMPARE(NameOf(*editor), std::string());
    QCOMPARE(ValuesOf(*editor), m_record.unset);
}

void NamedRecordChecks::OKStoresTheDefaults()
{
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    QCOMPARE(RunAndPress(*editor, "okButton"), int(QDialog::Accepted));
    QCOMPARE(NameOf(*editor), m_record.name);
    QCOMPARE(ValuesOf(*editor), m_record.accepted);
}

void NamedRecordChecks::LeavingKeepsTheRecord_data()
{
    AddWaysToLeave();
}

void NamedRecordChecks::LeavingKeepsTheRecord()
{
    QFETCH(QString, way);
    for (const bool isGiven : {false, true}) {
        const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
        if (isGiven)
            Give(*editor);
        Then([&](QDialog& shown) {
            Type(shown, "lied_Name", "typed");
            m_record.change(shown);
            Leave(shown, way, "cancelButton");
        });
        QCOMPARE(editor->exec(), int(QDialog::Rejected));
        QCOMPARE(NameOf(*editor), std::string(isGiven ? "given" : ""));
        QCOMPARE(ValuesOf(*editor), isGiven ? m_record.given : m_record.unset);
    }
}

void NamedRecordChecks::ATakenNameIsRefusedEveryTime()
{
    Register(QByteArray::fromStdString(m_record.name));
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    Then([this](QDialog& shown) {
        m_record.change(shown);
        const QStringList before = DescribeForm(shown);
        for (int i = 0; i < 2; ++i) {
            Click(shown, "okButton");
            QVERIFY(shown.isVisible());
            QCOMPARE(DescribeForm(shown), before);
        }
        Type(shown, "lied_Name", "other");
        Click(shown, "okButton");
    });
    QCOMPARE(editor->exec(), int(QDialog::Accepted));
    QCOMPARE(Boxes(), ShownBoxes({Refusal(), Refusal()}));
    QCOMPARE(NameOf(*editor), std::string("other"));
    QCOMPARE(ValuesOf(*editor), m_record.changed);
}

void NamedRecordChecks::ARefusalKeepsTheGivenRecord()
{
    for (const std::string& shownName : {m_record.name, std::string("given")})
        Register(QByteArray::fromStdString(shownName));
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    Give(*editor);
    Then([this](QDialog& shown) {
        m_record.change(shown);
        Click(shown, "okButton");
        Click(shown, "cancelButton");
    });
    QCOMPARE(editor->exec(), int(QDialog::Rejected));
    QCOMPARE(Boxes(), ShownBoxes({Refusal()}));
    QCOMPARE(NameOf(*editor), std::string("given"));
    QCOMPARE(ValuesOf(*editor), m_record.given);
}

void NamedRecordChecks::OnePressOfOKShowsOneBox()
{
    Register(QByteArray::fromStdString(m_record.name));
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    QCOMPARE(Confirm(*editor), int(QDialog::Rejected));
    QCOMPARE(Boxes(), ShownBoxes({Refusal()}));
}

void NamedRecordChecks::TheRegistryIsNotWritten()
{
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    QCOMPARE(Confirm(*editor), int(QDialog::Accepted));
    QCOMPARE(NameOf(*editor), m_record.name);
    QVERIFY(!AttributeCommonMgr::GetInstance()->FindName(m_record.name));
}

void NamedRecordChecks::TheNameIsTakenAsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("registered");
    QTest::addColumn<int>("boxes");
    NewRow("blanks stay", " wall ", QByteArray("wall"), 0);
    NewRow("case counts", "Wall", QByteArray("wall"), 0);
    NewRow("empty", "", QByteArray("wall"), 0);
    NewRow("blank", " ", QByteArray(""), 0);
    NewRow("empty and taken", "", QByteArray(""), 1);
    NewRow("exactly taken", "wall", QByteArray("wall"), 1);
    NewRow("begins like a taken one", "wall", QByteArray("wall2"), 0);
}

void NamedRecordChecks::TheNameIsTakenAsTyped()
{
    QFETCH(QString, typed);
    QFETCH(QByteArray, registered);
    QFETCH(int, boxes);
    Register(registered);
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    Then([&](QDialog& shown) {
        Type(shown, "lied_Name", typed);
        Click(shown, "okButton");
        if (boxes > 0)
            Click(shown, "cancelButton");
    });
    QCOMPARE(editor->exec(), int(boxes > 0 ? QDialog::Rejected : QDialog::Accepted));
    QCOMPARE(Boxes(), ShownBoxes(boxes, Refusal()));
    QCOMPARE(NameOf(*editor), boxes > 0 ? std::string() : typed.toStdString());
}

void NamedRecordChecks::TheNameEndsAtTheFirstZero()
{
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    SetName(*editor, QString("ab") + QChar(0) + "cd");
    QCOMPARE(Confirm(*editor), int(QDialog::Accepted));
    QCOMPARE(NameOf(*editor), std::string("ab"));

    Register("ab");
    QCOMPARE(Confirm(*editor), int(QDialog::Rejected));
    QCOMPARE(Boxes(), ShownBoxes({Refusal()}));
}

void NamedRecordChecks::NamesAreBytesOfTheLocalCodePage_data()
{
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray gb18030("GB18030");
    const QByteArray latin1("ISO 8859-1");
    NewRow("UTF-8", QByteArray("UTF-8"), "固定", QByteArray("\xE5\x9B\xBA\xE5\xAE\x9A"));
    NewRow("GB18030", gb18030, "固定", QByteArray("\xB9\xCC\xB6\xA8"));
    NewRow("GB18030, four bytes", gb18030, "😀", QByteArray("\x94\x39\xFC\x36"));
    NewRow("Latin-1", latin1, "Träger", QByteArray("Tr\xE4ger"));
    NewRow("Latin-1 lacks the characters", latin1, "固定", QByteArray("??"));
}

void NamedRecordChecks::NamesAreBytesOfTheLocalCodePage()
{
    QFETCH(QByteArray, codePage);
    QFETCH(QString, typed);
    QFETCH(QByteArray, bytes);
    UseCodePage(codePage);
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    SetName(*editor, typed);
    QCOMPARE(Confirm(*editor), int(QDialog::Accepted));
    QCOMPARE(QByteArray::fromStdString(NameOf(*editor)), bytes);

    Register(bytes);
    QCOMPARE(Confirm(*editor), int(QDialog::Rejected));
    QCOMPARE(Boxes(), ShownBoxes({Refusal()}));
}

void NamedRecordChecks::ATakenNameIsFoundByItsBytes()
{
    // The same text is another name in another code page.
    Register("\xB9\xCC\xB6\xA8");
    const std::unique_ptr<QDialog> editor = NewDialog(nullptr);
    SetName(*editor, "固定");
    QCOMPARE(Confirm(*editor), int(QDialog::Accepted));
}
