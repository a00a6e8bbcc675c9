#include "TestCase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

// Projects and STEP files that go wrong lie in data/nasty. messages.txt has the message that the
// program must give for each project.
class tst_NastyParts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryProjectHasAMessage();
    void TheProgramGivesItsMessage_data();
    void TheProgramGivesItsMessage();
};

namespace {

struct Case
{
    QString name;
    QString message;
};

std::vector<Case> Cases()
{
    QFile file(TARN_NASTY_PARTS "/messages.txt");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("messages.txt cannot be read");
    std::vector<Case> cases;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        cases.push_back({line.section(": ", 0, 0), line.section(": ", 1)});
    }
    return cases;
}

} // namespace

void tst_NastyParts::EveryProjectHasAMessage()
{
    QStringList names;
    for (const Case& one : Cases())
        names << one.name + ".json";
    names.sort();
    QCOMPARE(QDir(TARN_NASTY_PARTS).entryList({"*.json"}, QDir::Files, QDir::Name), names);
}

void tst_NastyParts::TheProgramGivesItsMessage_data()
{
    QTest::addColumn<QString>("message");
    for (const Case& one : Cases())
        QTest::newRow(qPrintable(one.name)) << one.message;
}

void tst_NastyParts::TheProgramGivesItsMessage()
{
    QFETCH(QString, message);
    const QTemporaryDir results;
    QProcess program;
    program.setWorkingDirectory(TARN_NASTY_PARTS);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(TARN_HOST_PROGRAM, {"--study", QString("%1.json").arg(QTest::currentDataTag()),
                                      "--out", results.path()});
    QVERIFY(program.waitForFinished(60000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    const QString output = QString::fromUtf8(program.readAll());
    QVERIFY2(output.contains(": " + message + "\n"), qPrintable(output));
}

TARN_TEST_MAIN(tst_NastyParts)
#include "tst_NastyParts.moc"
