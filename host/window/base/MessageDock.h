#pragma once

#include <QDockWidget>
#include <QHash>
#include <QPair>
#include <QStandardItemModel>

class QTableView;

/// Shows the messages of the message channel: time, level, count and text.
///
/// The newest line is at the end and in view. A repeated message moves to the end with the new time
/// and a higher count. Long texts wrap. Beyond MaximumLines the oldest lines are removed. Selected
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

    /// Dims the lines with this text, because it does not hold any longer.
    void MarkPast(const QString& text);

    /// This host's word for @p level; see MessageLevel.
    static QString LevelWord(int level);

private:
    void AddMessage(int level, const QString& text);
    void ShowPast(const QList<QStandardItem*>& row, bool isPast);
    void CopySelection() const;
    void Clear();

    using Message = QPair<int, QString>;

    QStandardItemModel m_model;
    QTableView* m_view;
    QHash<Message, QStandardItem*> m_timeItems; // The first item of each message's row.
};
