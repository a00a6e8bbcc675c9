#include "NamedRecordTest.h"

#include "AttributeCommonMgr.h"
#include "EmptyAttributeNames.h"
#include "Heap.h"

#include <QLineEdit>

namespace {

void Register(const QByteArray& name)
{
    AttributeCommonMgr::GetInstance()->AddName(name.toStdString());
}

// Through the field, which can hold what nobody can type.
void SetName(const QDialog& editor, const QString& name)
{
    Find<QLineEdit>(editor, "lied_Name").setText(name);
}

// Confirms, and leaves where that was refused; gives exec()'s result.
int Confirm(QDialog& editor, ModalDriver& user)
{
    user.Then([&user](QDialog& shown) {
        const int boxes = user.Boxes().size();
        Click(shown, "okButton");
        if (user.Boxes().size() > boxes)
            Click(shown, "cancelButton");
    });
    return editor.exec();
}

} // namespace

NamedRecordChecks::NamedRecordChecks(const char* name, const ShownBox& refusal)
    : m_name(name)
    , m_refusal(refusal)
{
}

void NamedRecordChecks::OnePressOfOkAsksOnce()
{
    const EmptyAttributeNames names;
    Register(QByteArray::fromStdString(m_name));
    ModalDriver user;
    const std::unique_ptr<QDialog> editor = NewEditor();
    QCOMPARE(Confirm(*editor, user), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({m_refusal}));
}

void NamedRecordChecks::TheRegistryIsNotWritten()
{
    const EmptyAttributeNames names;
    ModalDriver user;
    const std::unique_ptr<QDialog> editor = NewEditor();
    QCOMPARE(Confirm(*editor, user), int(QDialog::Accepted));
    QCOMPARE(NameOf(*editor), m_name);
    QVERIFY(!AttributeCommonMgr::GetInstance()->FindName(m_name));
}

void NamedRecordChecks::TheNameIsTakenAsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("registered");
    QTest::addColumn<int>("boxes");
    QTest::newRow("blanks stay") << " wall " << QByteArray("wall") << 0;
    QTest::newRow("case counts") << "Wall" << QByteArray("wall") << 0;
    QTest::newRow("empty") << "" << QByteArray("wall") << 0;
    QTest::newRow("blank") << " " << QByteArray("") << 0;
    QTest::newRow("empty and taken") << "" << QByteArray("") << 1;
    QTest::newRow("exactly taken") << "wall" << QByteArray("wall") << 1;
    QTest::newRow("begins like a taken one") << "wall" << QByteArray("wall2") << 0;
}

void NamedRecordChecks::TheNameIsTakenAsTyped()
{
    QFETCH(QString, typed);
    QFETCH(QByteArray, registered);
    QFETCH(int, boxes);
    const EmptyAttributeNames names;
    Register(registered);
    ModalDriver user;
    const std::unique_ptr<QDialog> editor = NewEditor();
    user.Then([&](QDialog& shown) {
        Type(shown, "lied_Name", typed);
        Click(shown, "okButton");
        if (boxes > 0)
            Click(shown, "cancelButton");
    });
    QCOMPARE(editor->exec(), int(boxes > 0 ? QDialog::Rejected : QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>(boxes, m_refusal));
    QCOMPARE(NameOf(*editor), boxes > 0 ? std::string() : typed.toStdString());
}

void NamedRecordChecks::TheNameEndsAtTheFirstZero()
{
    const EmptyAttributeNames names;
    ModalDriver user;
    const std::unique_ptr<QDialog> editor = NewEditor();
    SetName(*editor, QString("ab") + QChar(0) + "cd");
    QCOMPARE(Confirm(*editor, user), int(QDialog::Accepted));
    QCOMPARE(NameOf(*editor), std::string("ab"));

    Register("ab");
    QCOMPARE(Confirm(*editor, user), int(QDialog::Rejected));
    QCOMPARE(user.Boxes(), QVector<ShownBox>({m_refusal}));
}

void NamedRecordChecks::NamesAreBytesOfTheLocalCodePage_data()
{
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << "固定"
                           << QByteArray("\xE5\x9B\xBA\xE5\xAE\x9A");
    QTest::newRow("GB18030") << QByteArray("GB18030") << "固定" << QByteArray("\xB9\xCC\xB6\xA8");
    QTest::newRow("GB18030, four bytes")
        << QByteArray("GB18030") << "😀" << QByteArray("\x94\x39\xFC\x36");
    QTest::newRow("Latin-1") << QByteArray("ISO 8859-1") << "Träger" << QByteArray("Tr\xE4ger");
    QTest::newRow("Latin-1 lacks the characters")
        << QByteArray("ISO 8859-1") << "固定" << QByteArray("??");
}

void NamedRecordChecks::NamesAreBytesOfTheLocalCodePage()
{
    QFETCH(QByteArray, codePage);
    QFETCH(QString, typed);
    QFETCH(QByteArray, bytes);
    UseCodePage(codePage);
    const EmptyAttributeNames names;
    ModalDriver user;
    const std::unique_ptr<QDialog> editor = NewEditor();
    SetName(*editor, typed);
    QCOMPARE(Confirm(*editor, user), int(QDialog::Accepted));
    QCOMPARE(QByteArray::fromStdString(NameOf(*editor)), bytes);

    Register(bytes);
    QCOMPARE(Confirm(*editor, user), int(QDialog::Rejected));
    QCOMPARE(user.Boxes(), QVector<ShownBox>({m_refusal}));
}

void NamedRecordChecks::ATakenNameIsFoundByItsBytes()
{
    const EmptyAttributeNames names;
    // The same text in another code page is another name.
    Register("\xB9\xCC\xB6\xA8");
    ModalDriver user;
    const std::unique_ptr<QDialog> editor = NewEditor();
    SetName(*editor, "固定");
    QCOMPARE(Confirm(*editor, user), int(QDialog::Accepted));
}

void NamedRecordChecks::EnterConfirmsFromEverywhere_data()
{
    QTest::addColumn<QByteArray>("focus");
    const QStringList widgets = TabOrder(*NewEditor());
    for (const QString& name : widgets)
        QTest::newRow(name.toLatin1()) << name.toLatin1();
}

void NamedRecordChecks::EnterConfirmsFromEverywhere()
{
    QFETCH(QByteArray, focus);
    const EmptyAttributeNames names;
    ModalDriver user;
    const std::unique_ptr<QDialog> editor = NewEditor();
    user.Then([&](QDialog& shown) {
        auto& widget = Find<QWidget>(shown, focus);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
    });
    QCOMPARE(editor->exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(NameOf(*editor), m_name);
}

void NamedRecordChecks::OpeningAThousandTimesTakesNoMemory()
{
    const std::ptrdiff_t growth = HeapGrowth([this] {
        const std::unique_ptr<QDialog> editor = NewEditor();
        editor->show();
        editor->close();
    });
    QVERIFY2(growth < 16 * 1000, qPrintable(QString::number(growth)));
}
