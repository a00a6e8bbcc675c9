#pragma once

#include "AnalysisDefinition.h"

#include <QObject>
#include <QString>

/// The analysis set-up of the open project, and the stores that the dialogs share with it.
///
/// KVPropertyData holds the element properties, FrequencyPref the frequency range, and
/// AttributeCommonMgr the names of boundary conditions and loads, so that the dialogs refuse a
/// second one of a name.
class AnalysisRecords : public QObject
{
    Q_OBJECT

public:
    explicit AnalysisRecords(QObject* parent = nullptr);
    ~AnalysisRecords() override;

    const AnalysisDefinition& Definition() const { return m_definition; }
    /// Replaces the set-up; the stores follow.
    void SetDefinition(const AnalysisDefinition& definition);

    /// Takes over what a dialog has changed in the stores.
    void TakeStores();

    /// Begins with the set-up of a project, whose materials and properties the stores hold already.
    /// Properties that only the store has join the set-up.
    void Start(const AnalysisDefinition& definition);

    /// Begins without a set-up.
    void Clear() { Start({}); }

Q_SIGNALS:
    void Changed();

private:
    void FreeNames();
    void RegisterNames();

    AnalysisDefinition m_definition;
};

/// Puts @p range into FrequencyPref, where the dialogs look for it.
void StoreFrequencies(const FrequencyRange& range);
