#include "TarnGUICommon.h"
#include "TestCase.h"

#include <QImage>

#include <type_traits>

class tst_TarnGUICommon : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheClassIsEmptyAndCanBeAssigned();
    void TheTitleImageIsCompiledIn();
};

void tst_TarnGUICommon::TheClassIsEmptyAndCanBeAssigned()
{
    static_assert(std::is_empty_v<TarnGUICommon>);
    TarnGUICommon one;
    const TarnGUICommon other;
    QCOMPARE(&(one = other), &one);
}

void tst_TarnGUICommon::TheTitleImageIsCompiledIn()
{
    const QImage image(":/images/TopTitle.png");
    QVERIFY(!image.isNull());
    QVERIFY(image.width() >= 16 && image.height() >= 16);
}

TARN_TEST_MAIN(tst_TarnGUICommon)
#include "tst_TarnGUICommon.moc"
