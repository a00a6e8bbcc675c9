#pragma once

#include "sConstrainData.h"
#include "sLoadForceData.h"

#include <QObject>
#include <QString>

#include <optional>
#include <string>
#include <vector>

/// The host's own records of the analysis set-up. Element properties, materials and the frequency
/// range are in stores that the dialogs share.
///
/// AttributeCommonMgr holds the name of each boundary condition and load in these records, so that
/// the dialogs refuse a second one of that name.
class AnalysisRecords : public QObject
{
    Q_OBJECT

public:
    /// The mesh of a part of a shape.
    struct SubShapeMesh
    {
        double size = 0.0;
        int number = 0;
    };

    explicit AnalysisRecords(QObject* parent = nullptr);
    ~AnalysisRecords() override;

    int Family() const { return m_family; } ///< As CAnalysisTypeGUI; Vibration initially.
    int Kind() const { return m_kind; }     ///< As CAnalysisTypeGUI; Vibration initially.
    void SetSolverType(int family, int kind);

    /// In the order of insertion.
    const std::vector<sConstrainData>& Constraints() const { return m_constraints; }
    /// In the order of insertion.
    const std::vector<sLoadForceData>& Loads() const { return m_loads; }

    void AddConstraint(const sConstrainData& constraint);
    void AddLoad(const sLoadForceData& load);

    /// Deletes the boundary condition or load named @p name and releases the name.
    void Remove(const std::string& name);

    /// Empty until it is set.
    const std::optional<double>& MeshSize() const { return m_meshSize; }
    void SetMeshSize(double size);

    /// Empty until it is set.
    const std::optional<SubShapeMesh>& SubShape() const { return m_subShape; }
    void SetSubShape(const SubShapeMesh& mesh);

    /// Resets everything to its initial state.
    void Clear();

Q_SIGNALS:
    void Changed();

private:
    void FreeNames();

    int m_family = 0;
    int m_kind = 0;
    std::vector<sConstrainData> m_constraints;
    std::vector<sLoadForceData> m_loads;
    std::optional<double> m_meshSize;
    std::optional<SubShapeMesh> m_subShape;
};

/// The name of a boundary condition or load, decoded from the local 8-bit code page.
inline QString AttributeText(const std::string& name)
{
    return QString::fromLocal8Bit(name.c_str());
}
