#pragma once

#include <QDockWidget>
#include <QHash>
#include <QPair>
#include <QStandardItemModel>

class QTableView;

/// Shows what is posted to the message channel: time, level, how often, text.
///
/// The newest line is at the end and in view. A line that comes again is not shown twice: it moves
/// to the end with the new time, and its count rises. Beyond MaximumLines the oldest go. Selected
/// lines can be copied.
class MessageDock : public QDockWidget
{
    Q_OBJECT

public:
    static constexpr int MaximumLines = 1000;

    enum Column
    {
        TimeColumn,
        LevelColumn,
        CountColumn,
        TextColumn
    };

    explicit MessageDock(QWidget* parent);
    ~MessageDock() override;

    /// How this host calls @p level; see MessageLevel.
    static QString LevelWord(int level);

private:
    void AddMessage(int level, const QString& text);
    void CopySelection() const;
    void Clear();

    using Message = QPair<int, QString>;

    QStandardItemModel m_model;
    QTableView* m_view;
    QHash<Message, QStandardItem*> m_timeItems; // The first item of each message's row.
};
