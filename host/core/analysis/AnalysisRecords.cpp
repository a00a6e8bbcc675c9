#include "AnalysisRecords.h"

#include "AnalysisType.h"
#include "AttributeCommonMgr.h"

#include <algorithm>

namespace {

template<class Record>
void RemoveByName(std::vector<Record>& records, const std::string& name)
{
    const auto isNamed = [&name](const Record& record) {
        return record.m_strName == name;
    };
    records.erase(std::remove_if(records.begin(), records.end(), isNamed), records.end());
}

} // namespace

AnalysisRecords::AnalysisRecords(QObject* parent)
    : QObject(parent)
    , m_family(AnalysisType::MechanicsFamily)
    , m_kind(AnalysisType::VibrationKind)
{
}

AnalysisRecords::~AnalysisRecords()
{
    FreeNames();
}

void AnalysisRecords::SetSolverType(int family, int kind)
{
    m_family = family;
    m_kind = kind;
    Q_EMIT Changed();
}

void AnalysisRecords::AddConstraint(const sConstrainData& constraint)
{
    AttributeCommonMgr::GetInstance()->AddName(constraint.m_strName);
    m_constraints.push_back(constraint);
    Q_EMIT Changed();
}

void AnalysisRecords::AddLoad(const sLoadForceData& load)
{
    AttributeCommonMgr::GetInstance()->AddName(load.m_strName);
    m_loads.push_back(load);
    Q_EMIT Changed();
}

void AnalysisRecords::Remove(const std::string& name)
{
    // A copy: the caller may pass the name of the record that is deleted.
    const std::string removed(name.data(), name.size());
    RemoveByName(m_constraints, removed);
    RemoveByName(m_loads, removed);
    AttributeCommonMgr::GetInstance()->RemoveName(removed);
    Q_EMIT Changed();
}

void AnalysisRecords::SetMeshSize(double size)
{
    m_meshSize = size;
    Q_EMIT Changed();
}

void AnalysisRecords::SetSubShape(const SubShapeMesh& mesh)
{
    m_subShape = mesh;
    Q_EMIT Changed();
}

void AnalysisRecords::Clear()
{
    FreeNames();
    m_family = AnalysisType::MechanicsFamily;
    m_kind = AnalysisType::VibrationKind;
    m_constraints.clear();
    m_loads.clear();
    m_meshSize.reset();
    m_subShape.reset();
    Q_EMIT Changed();
}

void AnalysisRecords::FreeNames()
{
    AttributeCommonMgr& registry = *AttributeCommonMgr::GetInstance();
    for (const sConstrainData& constraint : m_constraints)
        registry.RemoveName(constraint.m_strName);
    for (const sLoadForceData& load : m_loads)
        registry.RemoveName(load.m_strName);
}
