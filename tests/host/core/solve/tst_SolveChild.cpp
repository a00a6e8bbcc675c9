#include "DeckRun.h"
#include "HostTestMain.h"
#include "PathWithoutSolver.h"
#include "SolveChild.h"
#include "SolvedProject.h"
#include "SolverDeck.h"

#include <QProcess>

class tst_SolveChild : public With<TestCase, TemporaryDirectory>
{
    Q_OBJECT

private Q_SLOTS:
    void MessagesAreReadBack();
    void OtherLinesAreNoMessages_data();
    void OtherLinesAreNoMessages();
    void OnlyACompleteOrderIsOne();
    void AnOrderIsDoneAndDelivered();
    void AMeshIsDeliveredWithoutResults();
    void WithoutResultsTheDecksAreDelivered();
    void ResultsInTheTargetAreTaken();
    void ResultsOfALongerSearchAreTaken();
    void ASearchGoesOnAfterTheResultsInTheTarget();
    void AWrongProjectIsReported();
};

namespace {

struct Run
{
    explicit Run(const QByteArray& json, SolveKind kind = SolveKind::Vibration,
                 bool hasResults = false)
    {
        Put("p.json", json);
        QDir().mkpath("target");
        const SolveOrder order{kind, "p.json", "out", "target", hasResults, "en"};
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(), order.Arguments());
        if (!process.waitForFinished(60000))
            qFatal("The child does not end.");
        status = process.exitCode();
        while (process.canReadLine())
            messages.push_back(SolveMessage::FromLine(process.readLine()).value());
    }

    QStringList Texts(SolveMessage::Kind kind) const
    {
        QStringList texts;
        for (const SolveMessage& message : messages) {
            if (message.kind == kind)
                texts << message.text;
        }
        return texts;
    }

    int status = -1;
    std::vector<SolveMessage> messages;
};

constexpr int FirstAsked = 6; // Two modes and four spare ones.

/// The beam with a range of frequencies that the modes asked for first do not reach.
QByteArray HighModes()
{
    return Beam(R"({"number": 3})", R"({"min": 13000, "number": 2})");
}

QStringList Delivered()
{
    return QDir("target").entryList(QDir::Files, QDir::Name);
}

} // namespace

void tst_SolveChild::MessagesAreReadBack()
{
    const auto stage =
        SolveMessage::FromLine(SolveMessage{SolveMessage::Stage, SolveStage::Solving, {}}.ToLine());
    QVERIFY(stage && stage->kind == SolveMessage::Stage && stage->stage == SolveStage::Solving);
    for (const SolveMessage::Kind kind :
         {SolveMessage::Line, SolveMessage::Warning, SolveMessage::Problem}) {
        const auto read = SolveMessage::FromLine(SolveMessage{kind, {}, "长 = 5\nmm"}.ToLine());
        QVERIFY(read && read->kind == kind);
        QCOMPARE(read->text, QString("长 = 5 mm"));
    }
}

void tst_SolveChild::OtherLinesAreNoMessages_data()
{
    NewNameRows("line", {"", "L", "X text", "Line", "\n"});
}

void tst_SolveChild::OtherLinesAreNoMessages()
{
    QFETCH(QByteArray, line);
    QVERIFY(!SolveMessage::FromLine(line));
}

void tst_SolveChild::OnlyACompleteOrderIsOne()
{
    const auto isChild = [](const QStringList& arguments) {
        QList<QByteArray> texts = {"tarnhost"};
        for (const QString& argument : arguments)
            texts << argument.toUtf8();
        std::vector<char*> pointers;
        for (QByteArray& text : texts)
            pointers.push_back(text.data());
        return IsSolveChild(int(pointers.size()), pointers.data());
    };
    const QStringList order = SolveOrder{SolveKind::Mesh, "p", "o", "t", false, "en"}.Arguments();
    QVERIFY(isChild(order));
    QVERIFY(!isChild(order.mid(0, 3)));
    QVERIFY(!isChild({"--solve", "a", "--out", "b", "--set", "c=1"}));
}

void tst_SolveChild::AnOrderIsDoneAndDelivered()
{
    const Run run(BeamProject);
    QCOMPARE(run.status, 0);
    QCOMPARE(run.Texts(SolveMessage::Problem), QStringList());
    QCOMPARE(run.Texts(SolveMessage::Stage).size(), 5);
    QCOMPARE(run.Texts(SolveMessage::Line).filter("mode ").size(), 3);
    QCOMPARE(Delivered(), QStringList({"Model_Active.bdf", "Model_Active.inp", "modes.csv"}));
    QCOMPARE(ContentOf("target/Model_Active.inp"), ContentOf("out/Model_Active.inp"));
    const SolveReport report = ReportFromBytes(ContentOf("out/report.bin"));
    QCOMPARE(report.modes.size(), std::size_t(3));
    QVERIFY(ContentOf("target/modes.csv")
                .startsWith("mode,frequency_hz\n1," +
                            QByteArray::number(report.modes[0].frequency, 'g', 17) + '\n'));
}

void tst_SolveChild::AMeshIsDeliveredWithoutResults()
{
    Run(BeamProject, SolveKind::Static);
    QVERIFY(Delivered().contains("static.csv"));
    Put("target/Model_Active.frd", "old");
    Put("target/mine.txt", "x");
    QCOMPARE(Run(BeamProject, SolveKind::Mesh).status, 0);
    // What belongs to another analysis is gone.
    QCOMPARE(Delivered(), QStringList({"Model_Active.bdf", "Model_Active.inp", "mine.txt"}));
}

void tst_SolveChild::WithoutResultsTheDecksAreDelivered()
{
    const PathWithoutSolver path;
    const Run run(BeamProject);
    QCOMPARE(run.status, 1);
    QCOMPARE(run.Texts(SolveMessage::Problem),
             QStringList("The program ccx is missing: install the Debian package calculix-ccx, or "
                         "set the path of the program."));
    QCOMPARE(Delivered(), QStringList({"Model_Active.bdf", "Model_Active.inp"}));
    QVERIFY(ReportFromBytes(ContentOf("out/report.bin")).kind == SolveKind::Mesh);
}

void tst_SolveChild::ResultsInTheTargetAreTaken()
{
    QCOMPARE(Run(BeamProject, SolveKind::Mesh).status, 0);
    DeckRun("target/Model_Active.bdf", {}).Run();
    {
        // The solver is not needed any more.
        const PathWithoutSolver path;
        const Run run(BeamProject, SolveKind::Vibration, true);
        QCOMPARE(run.Texts(SolveMessage::Problem), QStringList());
        QCOMPARE(ReportFromBytes(ContentOf("out/report.bin")).modes.size(), std::size_t(3));
        QVERIFY(QFile::exists("target/Model_Active.frd"));
    }
    const Run other(Beam(R"("l / 10")", R"("l / 8")"), SolveKind::Vibration, true);
    QCOMPARE(other.Texts(SolveMessage::Problem),
             QStringList("The results in the folder are not those of the part and its set-up as "
                         "they are now: solve again."));
}

void tst_SolveChild::ResultsOfALongerSearchAreTaken()
{
    QCOMPARE(Run(HighModes()).status, 0);
    QVERIFY(ModesAskedBy(ContentOf("target/Model_Active.inp")) > FirstAsked);
    DeckRun("target/Model_Active.bdf", {}).Run();
    const PathWithoutSolver path;
    const Run run(HighModes(), SolveKind::Vibration, true);
    QCOMPARE(run.Texts(SolveMessage::Problem), QStringList());
    QCOMPARE(ReportFromBytes(ContentOf("out/report.bin")).modes.size(), std::size_t(2));
}

void tst_SolveChild::ASearchGoesOnAfterTheResultsInTheTarget()
{
    QCOMPARE(Run(HighModes(), SolveKind::Mesh).status, 0);
    QCOMPARE(ModesAskedBy(ContentOf("target/Model_Active.inp")), FirstAsked);
    DeckRun("target/Model_Active.bdf", {}).Run();
    const Run run(HighModes(), SolveKind::Vibration, true);
    QCOMPARE(run.Texts(SolveMessage::Problem), QStringList());
    QCOMPARE(ReportFromBytes(ContentOf("out/report.bin")).modes.size(), std::size_t(2));
}

void tst_SolveChild::AWrongProjectIsReported()
{
    const Run run("{}");
    QCOMPARE(run.status, 1);
    QCOMPARE(run.Texts(SolveMessage::Problem).size(), 1);
    QCOMPARE(Delivered(), QStringList());
}

TARN_HOST_TEST_MAIN(tst_SolveChild)
#include "tst_SolveChild.moc"
