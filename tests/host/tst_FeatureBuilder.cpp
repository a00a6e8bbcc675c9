#include "TestCase.h"
class tst_FeatureBuilder : public TestCase
{
    Q_OBJECT
};
TARN_TEST_MAIN(tst_FeatureBuilder)
#include "tst_FeatureBuilder.moc"
