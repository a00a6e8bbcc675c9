#include "AttributeCommonMgr.h"
#include "TestCase.h"

namespace {

bool IsTaken(std::string name)
{
    return AttributeCommonMgr::GetInstance()->FindName(name);
}

} // namespace

class tst_AttributeCommonMgr : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ThereIsOneRegistry();
    void OnlyRegisteredNamesAreTaken();
    void NamesCompareByteForByte();
    void TheEmptyNameCanBeRegistered();
    void LookingUpRegistersNothing();
    void ARemovedNameIsFree();
    void ANameRegisteredTwiceIsFreedAtOnce();
    void ClearingFreesAll();
};

void tst_AttributeCommonMgr::ThereIsOneRegistry()
{
    QVERIFY(AttributeCommonMgr::GetInstance() != nullptr);
    QCOMPARE(AttributeCommonMgr::GetInstance(), AttributeCommonMgr::GetInstance());
}

void tst_AttributeCommonMgr::OnlyRegisteredNamesAreTaken()
{
    AttributeCommonMgr::GetInstance()->Clear();
    QVERIFY(!IsTaken("a"));
    AttributeCommonMgr::GetInstance()->AddName("a");
    QVERIFY(IsTaken("a"));
    QVERIFY(!IsTaken("b"));
    QVERIFY(!IsTaken(""));
}

void tst_AttributeCommonMgr::NamesCompareByteForByte()
{
    AttributeCommonMgr::GetInstance()->Clear();
    AttributeCommonMgr::GetInstance()->AddName("Fixed \xb9\xcc");
    QVERIFY(IsTaken("Fixed \xb9\xcc"));
    QVERIFY(!IsTaken("fixed \xb9\xcc"));
    QVERIFY(!IsTaken("Fixed \xb9\xcd"));
    QVERIFY(!IsTaken("Fixed \xb9\xcc "));
    QVERIFY(!IsTaken("Fixed"));
}

void tst_AttributeCommonMgr::TheEmptyNameCanBeRegistered()
{
    AttributeCommonMgr::GetInstance()->Clear();
    AttributeCommonMgr::GetInstance()->AddName("");
    QVERIFY(IsTaken(""));
}

void tst_AttributeCommonMgr::LookingUpRegistersNothing()
{
    AttributeCommonMgr::GetInstance()->Clear();
    QVERIFY(!AttributeCommonMgr::GetInstance()->FindName("a"));
    QVERIFY(!AttributeCommonMgr::GetInstance()->FindName("a"));
}

void tst_AttributeCommonMgr::ARemovedNameIsFree()
{
    AttributeCommonMgr::GetInstance()->Clear();
    AttributeCommonMgr::GetInstance()->AddName("a");
    AttributeCommonMgr::GetInstance()->AddName("b");
    AttributeCommonMgr::GetInstance()->RemoveName("unknown");
    AttributeCommonMgr::GetInstance()->RemoveName("a");
    QVERIFY(!IsTaken("a"));
    QVERIFY(IsTaken("b"));
}

void tst_AttributeCommonMgr::ANameRegisteredTwiceIsFreedAtOnce()
{
    AttributeCommonMgr::GetInstance()->Clear();
    AttributeCommonMgr::GetInstance()->AddName("a");
    AttributeCommonMgr::GetInstance()->AddName("a");
    AttributeCommonMgr::GetInstance()->RemoveName("a");
    QVERIFY(!IsTaken("a"));
}

void tst_AttributeCommonMgr::ClearingFreesAll()
{
    AttributeCommonMgr::GetInstance()->AddName("a");
    AttributeCommonMgr::GetInstance()->AddName("b");
    AttributeCommonMgr::GetInstance()->Clear();
    QVERIFY(!IsTaken("a"));
    QVERIFY(!IsTaken("b"));
}

TARN_TEST_MAIN(tst_AttributeCommonMgr)
#include "tst_AttributeCommonMgr.moc"
