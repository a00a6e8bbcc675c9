#include "TestCase.h"
class tst_StoredDesign : public TestCase
{
    Q_OBJECT
};
TARN_TEST_MAIN(tst_StoredDesign)
#include "tst_StoredDesign.moc"
