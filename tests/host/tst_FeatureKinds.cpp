#include "TestCase.h"
class tst_FeatureKinds : public TestCase
{
    Q_OBJECT
};
TARN_TEST_MAIN(tst_FeatureKinds)
#include "tst_FeatureKinds.moc"
