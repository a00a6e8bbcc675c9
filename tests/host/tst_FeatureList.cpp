#include "TestCase.h"
class tst_FeatureList : public TestCase
{
    Q_OBJECT
};
TARN_TEST_MAIN(tst_FeatureList)
#include "tst_FeatureList.moc"
