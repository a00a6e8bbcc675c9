#pragma once

#include "StudyDefinition.h"

#include <QTableWidget>

/// The responses of a study, each with its name and its expression, to edit in place.
class ResponseTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit ResponseTable(QWidget* parent = nullptr);
    ~ResponseTable() override;

    void Show(const std::vector<StudyResponse>& responses);
    /// Those with a name and an expression.
    std::vector<StudyResponse> Responses() const;

    /// A new row, whose name is edited.
    void Add();
    void RemoveSelected();

Q_SIGNALS:
    /// The user changed Responses(), as @p text says.
    void Edited(const QString& text);

private:
    void AddRow(const StudyResponse& response);
};
