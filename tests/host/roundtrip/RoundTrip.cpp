// See run.

#include "Work.h"

#include <QCoreApplication>
#include <QMap>
#include <QProcess>
#include <QTextStream>

namespace {

// The child: a line with the seed before the work, and one with the result after it.
int Work(const QString& work, unsigned first, unsigned count)
{
    QTextStream out(stdout);
    for (unsigned seed = first; seed < first + count; ++seed) {
        out << seed << Qt::endl;
        out << (work == "models" ? RoundTrip(seed) : ReadDamagedFile(seed)) << Qt::endl;
    }
    return 0;
}

class Supervisor
{
public:
    explicit Supervisor(const QString& work)
        : m_work(work)
    {
    }

    int Run(unsigned first, unsigned count)
    {
        const unsigned end = first + count;
        while (first < end)
            first = RunChild(first, end);
        m_out << Qt::endl;
        for (auto result = m_counts.cbegin(); result != m_counts.cend(); ++result)
            m_out << result.key() << ": " << result.value() << Qt::endl;
        return m_counts.contains("different") ? 1 : 0;
    }

private:
    // The seed after the last one that has a result.
    unsigned RunChild(unsigned first, unsigned end)
    {
        constexpr int Batch = 100;
        constexpr int Patience = 20000; // ms
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QCoreApplication::applicationFilePath(),
                    {"--child", m_work, QString::number(first),
                     QString::number(qMin(end - first, unsigned(Batch)))});
        unsigned seed = first;
        const auto nextLine = [&child] {
            while (!child.canReadLine() && child.waitForReadyRead(Patience)) {
            }
            return QString::fromUtf8(child.readLine()).trimmed();
        };
        for (QString line = nextLine(); !line.isEmpty(); line = nextLine()) {
            seed = line.toUInt();
            const QString result = nextLine();
            if (!result.isEmpty()) {
                Count(seed, result);
                continue;
            }
            const bool hangs = child.state() == QProcess::Running && !child.waitForFinished(1000);
            child.kill();
            child.waitForFinished();
            Count(seed, hangs ? "timeout" : "crash");
            return seed + 1;
        }
        child.waitForFinished();
        return seed + 1;
    }

    void Count(unsigned seed, const QString& result)
    {
        const QString word = result.section(' ', 0, 0);
        ++m_counts[word];
        if (word != "same" && word != "sound")
            m_out << seed << ": " << result << Qt::endl;
    }

    QString m_work;
    QMap<QString, int> m_counts;
    QTextStream m_out{stdout};
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QStringList arguments = application.arguments().mid(1);
    const bool isChild = !arguments.isEmpty() && arguments.first() == "--child";
    if (isChild)
        arguments.removeFirst();
    const QString work = arguments.value(0);
    if (work != "models" && work != "files")
        qFatal("usage: roundtrip models|files [first seed [count]]");
    const unsigned first = arguments.value(1, "1").toUInt();
    const unsigned count = arguments.value(2, work == "models" ? "2000" : "1000").toUInt();
    return isChild ? Work(work, first, count) : Supervisor(work).Run(first, count);
}
