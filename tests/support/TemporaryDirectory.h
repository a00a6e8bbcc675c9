#pragma once

#include <QDir>
#include <QTemporaryDir>

/// Makes a new temporary directory the working directory while it lives.
class TemporaryDirectory
{
public:
    TemporaryDirectory() { QDir::setCurrent(m_directory.path()); }
    ~TemporaryDirectory() { QDir::setCurrent(m_before); }
    Q_DISABLE_COPY(TemporaryDirectory)

    QString Path() const { return m_directory.path(); }

private:
    const QString m_before = QDir::currentPath();
    const QTemporaryDir m_directory;
};
