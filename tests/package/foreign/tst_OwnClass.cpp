#include "DOEDlg.h"
#include "EmptyDesignStores.h"
#include "GlobalParaMeterMgr.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

// A host that has a class with the name of one of the library's dialogs.

/// The host's own dialog, which has nothing in common with that of the library.
class OneParameterDlg : public QDialog
{
    Q_OBJECT

public:
    OneParameterDlg(QWidget* parent, QString name);
    ~OneParameterDlg() override { ++s_shown; }

    void done(int result) override;

    static int s_shown; ///< How many of them there were.

public Q_SLOTS:
    void m_Slot_OK();

private:
    QString m_name;
};

int OneParameterDlg::s_shown = 0;

OneParameterDlg::OneParameterDlg(QWidget* parent, QString name)
    : QDialog(parent)
    , m_name(std::move(name))
{
    setObjectName(QStringLiteral("own"));
}

void OneParameterDlg::done(int result)
{
    ++s_shown;
    QDialog::done(result);
}

void OneParameterDlg::m_Slot_OK()
{
    ++s_shown;
}

class tst_OwnClass : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void TheLibraryShowsItsOwnDialog();
    void TheHostShowsItsOwnDialog();
};

void tst_OwnClass::TheLibraryShowsItsOwnDialog()
{
    ParametersDef record;
    record.m_strName = QStringLiteral("length");
    record.m_nType = ParametersDef::ScalarType;
    GlobalParaMeterMgr::AddParameter(record.m_strName, record);
    DOEDlg dialog(nullptr);
    dialog.show();
    auto& table = *dialog.findChild<QTableWidget*>(QStringLiteral("tableWidget_Parameters"));
    auto& check = *qobject_cast<QCheckBox*>(table.cellWidget(0, 1));
    QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(5, check.height() / 2));

    OneParameterDlg::s_shown = 0;
    ModalDriver user;
    user.Then([](QDialog& shown) {
        QCOMPARE(shown.objectName(), QStringLiteral("OneParameterDlg"));
        QVERIFY(shown.metaObject() != &OneParameterDlg::staticMetaObject);
        QVERIFY(shown.metaObject()->indexOfSlot("RefreshTableData()") >= 0);
        QVERIFY(!shown.findChildren<QLineEdit*>().isEmpty());
        shown.reject();
    });
    QTest::mouseClick(table.cellWidget(0, 2), Qt::LeftButton);
    QVERIFY(user.IsDone());
    QCOMPARE(OneParameterDlg::s_shown, 0);
}

void tst_OwnClass::TheHostShowsItsOwnDialog()
{
    OneParameterDlg::s_shown = 0;
    {
        OneParameterDlg own(nullptr, QStringLiteral("x"));
        QCOMPARE(own.objectName(), QStringLiteral("own"));
        own.done(QDialog::Rejected);
    }
    QCOMPARE(OneParameterDlg::s_shown, 2);
}

TARN_TEST_MAIN(tst_OwnClass)
#include "tst_OwnClass.moc"
