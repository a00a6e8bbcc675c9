#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <map>

/// Puts lines about runs that end in any order into the order in which they were begun. A run that
/// takes far longer than others does not hold their lines back for ever.
class ProgressLines
{
public:
    /// Calls @p tell with each line. At most @p limit runs wait for an earlier one.
    ProgressLines(std::function<void(const QString&)> tell, int limit);

    /// The number of the next run in the order.
    int Next() { return m_given++; }
    /// The lines about the run that has the number @p place, all at once.
    void Add(int place, const QStringList& lines);
    /// Passes on all lines that still wait.
    void Flush();

private:
    void Tell(const QStringList& lines) const;

    std::function<void(const QString&)> m_tell;
    std::size_t m_limit;
    int m_given = 0;
    int m_told = 0; // The first place of which nothing was told.
    std::map<int, QStringList> m_waiting;
};
