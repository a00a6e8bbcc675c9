// See run.

#include "Work.h"
#include "WorkerProcess.h"

#include <QCoreApplication>
#include <QMap>
#include <QTextStream>

int main(int argc, char** argv)
{
    if (IsWorker(argc, argv))
        return RunWorker(argc, argv);
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QString work = arguments.value(1);
    if (work != "models" && work != "files")
        qFatal("usage: roundtrip models|files [first seed [count]]");
    const unsigned first = arguments.value(2, "1").toUInt();
    const unsigned count = arguments.value(3, work == "models" ? "2000" : "1000").toUInt();

    QTextStream out(stdout);
    QMap<QString, int> counts;
    Work worker;
    for (unsigned seed = first; seed < first + count; ++seed) {
        const QString result = worker.Do(work, seed);
        const QString word = result.section(' ', 0, 0);
        ++counts[word];
        if (word != "same" && word != "sound")
            out << seed << ": " << result << Qt::endl;
    }
    out << Qt::endl;
    for (auto result = counts.cbegin(); result != counts.cend(); ++result)
        out << result.key() << ": " << result.value() << Qt::endl;
    return counts.contains("different") ? 1 : 0;
}
