#include "Heap.h"
#include "TestCase.h"

#include <memory>
#include <vector>

class tst_Heap : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ALeakIsFound_data();
    void ALeakIsFound();
    void FreedMemoryIsNotALeak();
    void ACacheThatGrowsNowAndThenIsNotALeak();
    void ALargeBlockCounts();
};

void tst_Heap::ALeakIsFound_data()
{
    QTest::addColumn<int>("bytes");
    NewRow("the smallest one", int(SmallestLeak));
    NewRow("50 bytes", 50);
    NewRow("beyond the limit for blocks of their own", 200000);
}

void tst_Heap::ALeakIsFound()
{
    QFETCH(int, bytes);
    std::vector<std::unique_ptr<char[]>> kept;
    kept.reserve(10000); // Its own growth must not count.
    const double growth =
        HeapGrowth([&] { kept.push_back(std::make_unique<char[]>(std::size_t(bytes))); });
    QVERIFY2(growth >= SmallestLeak && growth >= bytes, qPrintable(QString::number(growth)));
    QVERIFY2(growth < bytes + 4096, qPrintable(QString::number(growth)));
}

void tst_Heap::FreedMemoryIsNotALeak()
{
    const double growth = HeapGrowth([] {
        for (const std::size_t bytes : {std::size_t(50), std::size_t(5000), std::size_t(500000)})
            std::make_unique<char[]>(bytes);
    });
    QVERIFY2(growth < SmallestLeak, qPrintable(QString::number(growth)));
}

void tst_Heap::ACacheThatGrowsNowAndThenIsNotALeak()
{
    std::vector<std::unique_ptr<char[]>> cache;
    int calls = 0;
    const double growth = HeapGrowth([&] {
        if (++calls % 150 == 0)
            cache.push_back(std::make_unique<char[]>(50000));
    });
    QVERIFY2(growth < SmallestLeak, qPrintable(QString::number(growth)));
}

void tst_Heap::ALargeBlockCounts()
{
    const std::size_t before = HeapInUse();
    const std::vector<char> block(100000000);
    QVERIFY(HeapInUse() - before >= block.size());
}

TARN_TEST_MAIN(tst_Heap)
#include "tst_Heap.moc"
