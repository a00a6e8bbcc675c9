#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

/// How to recognise the STEP file that a run has written.
struct StepStamp
{
    qint64 size = -1; ///< In bytes; below 0 for a run without a STEP file.
    qint64 time = 0;  ///< Of its last change, in ms.
    QByteArray hash;  ///< Of its content.

    /// Of the file at @p path. Its size is below 0 if it is missing.
    static StepStamp Of(const QString& path);
    /// Whether the file at @p path is still this one. Reads it only if it was touched since.
    bool IsOf(const QString& path) const;
};

/// What is known of a run.
struct RunRecord
{
    enum State
    {
        Open,
        Failed,
        Ok
    };

    State state = Open;
    bool isBegun = false; ///< It was begun again since, and has not ended.
    int ends = 0;         ///< How often it has ended.
    QByteArray row;       ///< In results.csv, with its line end; empty while it is open.
    StepStamp step;
};

/// A line of a journal.
struct JournalLine
{
    int run = 0; ///< From 1; 0 for a line that is not whole.
    bool isEnd = false;
    RunRecord record; ///< At the end of a run.

    /// @p line is without its line end.
    static JournalLine Parse(const QByteArray& line);
};

/// The file in which one program records what it does. Each line is in the file before the run goes
/// on, and on the disk a second later, so that a kill loses nothing.
class Journal
{
public:
    /// Of all journals in a folder.
    static const QString NamePattern;

    /// @p folder is where the file is created with the first line.
    explicit Journal(QString folder);
    ~Journal();
    Q_DISABLE_COPY(Journal)

    /// @throws FolderError; the file then is as before
    void Begin(int run);
    void End(int run, const RunRecord& record);

    /// Puts the lines on the disk that are not. @throws FolderError
    void Sync();

private:
    void Open();
    void Write(const QByteArray& line);
    [[noreturn]] void Fail() const;

    QString m_folder;
    QString m_path;
    int m_file = -1;
    QElapsedTimer m_sinceSync;
    bool m_isSynced = true;
};
