#include "TestCase.h"
class tst_FieldValues : public TestCase
{
    Q_OBJECT
};
TARN_TEST_MAIN(tst_FieldValues)
#include "tst_FieldValues.moc"
