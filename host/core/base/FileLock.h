#pragma once

#include <QByteArray>
#include <QString>

/// Holds a file as a sign to other programs, until this object or the program ends. The file is
/// removed then, if the program ends by itself.
class FileLock
{
public:
    /// Tries to take the file at @p path, which is created if it is not there.
    explicit FileLock(const QString& path);
    ~FileLock();
    Q_DISABLE_COPY(FileLock)

    bool IsHeld() const { return m_handle >= 0; }
    /// Whether another program has it. Otherwise a lock that is not held could not be created.
    bool IsHeldElsewhere() const { return m_isHeldElsewhere; }

private:
    /// False if the file has to be opened again.
    bool Try();

    QByteArray m_path;
    int m_handle = -1;
    bool m_isHeldElsewhere = false;
};
