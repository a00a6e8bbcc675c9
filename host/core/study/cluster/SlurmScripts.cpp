#include "SlurmScripts.h"

#include <QFile>

namespace {

// As one word for the shell.
QByteArray Quoted(const QString& path)
{
    return '\'' + QFile::encodeName(path).replace('\'', "'\\''") + '\'';
}

// The limits of both jobs.
QByteArray Header(const SlurmTasks& tasks, const QByteArray& name)
{
    QByteArray text = "#!/bin/sh\n"
                      "#SBATCH --job-name=" +
                      name +
                      "\n"
                      "#SBATCH --requeue\n"
                      "#SBATCH --open-mode=append\n";
    if (!tasks.partition.isEmpty())
        text += "#SBATCH --partition=" + tasks.partition.toUtf8() + '\n';
    if (!tasks.time.isEmpty())
        text += "#SBATCH --time=" + tasks.time.toUtf8() + '\n';
    if (!tasks.memory.isEmpty())
        text += "#SBATCH --mem=" + tasks.memory.toUtf8() + '\n';
    return text;
}

} // namespace

QByteArray SlurmArrayScript(const SlurmTasks& tasks)
{
    const QByteArray count = QByteArray::number(tasks.tasks);
    const QByteArray runs = QByteArray::number(tasks.lastRun - tasks.firstRun + 1);
    const QByteArray before = QByteArray::number(tasks.firstRun - 1);
    // The task gets the signal, and not a shell around it.
    QByteArray text = Header(tasks, "study") + "#SBATCH --array=1-" + count +
                      "\n"
                      "#SBATCH --cpus-per-task=" +
                      QByteArray::number(tasks.jobs) +
                      "\n"
                      "#SBATCH --signal=B:TERM@10\n"
                      "first=$((" +
                      before + " + (SLURM_ARRAY_TASK_ID - 1) * " + runs + " / " + count +
                      " + 1))\n"
                      "last=$((" +
                      before + " + SLURM_ARRAY_TASK_ID * " + runs + " / " + count +
                      "))\n"
                      "exec " +
                      Quoted(tasks.program) + " --study " + Quoted(tasks.project) + " --out " +
                      Quoted(tasks.folder) + " --runs \"$first-$last\" --jobs " +
                      QByteArray::number(tasks.jobs) + " --no-table";
    if (tasks.seconds > 0)
        text += " --timeout " + QByteArray::number(tasks.seconds);
    if (!tasks.hasSteps)
        text += " --step none";
    return text + '\n';
}

QByteArray SlurmMergeScript(const SlurmTasks& tasks)
{
    return Header(tasks, "study-merge") + "exec " + Quoted(tasks.program) + " --merge " +
           Quoted(tasks.folder) + '\n';
}

QByteArray SlurmSubmitScript(const SlurmTasks& tasks)
{
    // The log's name must not hold the folder: the queue would expand a "%" in it.
    const QByteArray submit = "sbatch --parsable --chdir=\"$folder\" ";
    return "#!/bin/sh\n"
           "# Submits the study, and behind it the job that writes results.csv.\n"
           "set -e\n"
           "folder=" +
           Quoted(tasks.folder) +
           "\n"
           "number() { job=${1##* }; printf '%s\\n' \"${job%%;*}\"; }\n"
           "array=$(" +
           submit +
           "--output=slurm_array_%a.log \"$folder/slurm_array.sh\")\n"
           "array=$(number \"$array\")\n"
           "merge=$(" +
           submit +
           "--output=slurm_merge.log --dependency=\"afterany:$array\" \"$folder/slurm_merge.sh\")\n"
           "merge=$(number \"$merge\")\n"
           "printf '%s\\n' \"$array\" \"$merge\"\n";
}
