#include "TestCase.h"
class tst_Conditions : public TestCase
{
    Q_OBJECT
};
TARN_TEST_MAIN(tst_Conditions)
#include "tst_Conditions.moc"
