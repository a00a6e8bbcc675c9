#include "ParameterEvaluator.h"

#include "ExpressionEngine.h"
#include "ExpressionNames.h"
#include "GlobalParaMeterMgr.h"
#include "NumberText.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <utility>

namespace {

constexpr int NotVisited = -1;

QString TextOf(const ParametersDef& record)
{
    return QString::fromLocal8Bit(record.m_strExpression.c_str());
}

QSet<QString> StoredNames()
{
    QSet<QString> names;
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters)
        names.insert(name);
    return names;
}

void SetValue(ParametersDef& record, double value)
{
    record.m_dValue = value;
    record.m_varRawValue = value;
    record.m_strValue = tarn::NumberText(value);
}

/// A parameter with an expression, and the expressions that it depends on.
struct Node
{
    QString name;
    ParametersDef* record = nullptr;
    QStringList uses;
    std::vector<int> needs; ///< The nodes among the used names.
    int order = NotVisited; ///< The step at which the search reached the node.
    int reach = NotVisited; ///< The earliest open node that can be reached from here.
    std::size_t next = 0;   ///< The entry of needs to visit next.
    bool open = false;      ///< Its cycle, if any, is not known yet.
    bool isBad = false;
};

/// Tarjan's search for strongly connected components. It closes a node after all nodes that it
/// needs, so it evaluates each node when it closes it. A component of several nodes is a cycle.
/// The search keeps its own stack, because a chain may be as long as the store.
class Evaluator
{
public:
    explicit Evaluator(const QSet<QString>& held) { CollectNodes(held); }

    ParameterEvaluator::Faults Run()
    {
        for (int node = 0; node < int(m_nodes.size()); ++node) {
            if (m_nodes[std::size_t(node)].order == NotVisited)
                Search(node);
        }
        return m_faults;
    }

private:
    Node& At(int node) { return m_nodes[std::size_t(node)]; }

    void CollectNodes(const QSet<QString>& held)
    {
        QHash<QString, int> nodeOfName;
        const QSet<QString> names = StoredNames();
        for (auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters) {
            if (record.m_strExpression.empty() || held.contains(name))
                continue;
            nodeOfName.insert(name, int(m_nodes.size()));
            Node node;
            node.name = name;
            node.record = &record;
            node.uses = tarn::ParametersIn(TextOf(record), names);
            m_nodes.push_back(std::move(node));
        }
        for (Node& node : m_nodes) {
            for (const QString& name : qAsConst(node.uses)) {
                const auto found = nodeOfName.constFind(name);
                if (found != nodeOfName.constEnd())
                    node.needs.push_back(*found);
            }
        }
    }

    void Enter(int node)
    {
        At(node).order = At(node).reach = m_visited++;
        At(node).open = true;
        m_path.push_back(node);
        m_open.push_back(node);
    }

    void Search(int root)
    {
        Enter(root);
        while (!m_path.empty()) {
            const int current = m_path.back();
            Node& node = At(current);
            if (node.next < node.needs.size()) {
                const int needed = node.needs[node.next++];
                if (At(needed).order == NotVisited)
                    Enter(needed);
                else if (At(needed).open)
                    node.reach = std::min(node.reach, At(needed).order);
                continue;
            }
            m_path.pop_back();
            if (!m_path.empty())
                At(m_path.back()).reach = std::min(At(m_path.back()).reach, node.reach);
            if (node.reach == node.order)
                Close(current);
        }
    }

    void Close(int first)
    {
        const auto begin = std::find(m_open.rbegin(), m_open.rend(), first).base() - 1;
        const std::vector<int> component(begin, m_open.end());
        m_open.erase(begin, m_open.end());

        const std::vector<int>& needs = At(first).needs;
        const bool needsItself = std::find(needs.begin(), needs.end(), first) != needs.end();
        if (component.size() > 1 || needsItself)
            ReportCycle(component);
        else
            Evaluate(At(first));
        for (const int node : component)
            At(node).open = false;
    }

    void ReportCycle(const std::vector<int>& component)
    {
        // The component consists of the open nodes that were entered after its first one.
        const int first = component.front();
        const auto isInside = [&](int node) {
            return At(node).open && At(node).order >= At(first).order;
        };
        std::vector<int> walk;
        QHash<int, int> placeInWalk;
        int node = first;
        while (!placeInWalk.contains(node)) {
            placeInWalk.insert(node, int(walk.size()));
            walk.push_back(node);
            node = *std::find_if(At(node).needs.begin(), At(node).needs.end(), isInside);
        }
        walk.erase(walk.begin(), walk.begin() + placeInWalk.value(node));

        constexpr std::size_t MostNames = 12;
        QStringList names;
        for (const int member : walk) {
            if (names.size() == int(MostNames)) {
                names << QStringLiteral("...");
                break;
            }
            names << At(member).name;
        }
        names << At(node).name;
        const QString message = ParameterEvaluator::tr("Circular reference: %1")
                                    .arg(names.join(QStringLiteral(" -> ")));
        m_faults.messages.push_back(message);
        for (const int member : component)
            Fail(At(member), message);
    }

    void Fail(Node& node, const QString& reason)
    {
        node.isBad = true;
        SetValue(*node.record, std::nan(""));
        m_faults.reasons.insert(node.name, reason);
    }

    void Evaluate(Node& node)
    {
        const ParameterMap& store = GlobalParaMeterMgr::m_nameMapParameters;
        std::map<std::string, double> variables;
        for (const QString& name : qAsConst(node.uses)) {
            if (store.count(name) == 0) {
                const QString reason =
                    ParameterEvaluator::tr("its expression uses \"%1\", which is not a parameter")
                        .arg(name);
                Fail(node, reason);
                m_faults.messages.push_back(QStringLiteral("%1: %2").arg(node.name, reason));
                return;
            }
            variables[name.toLocal8Bit().toStdString()] =
                GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
        }

        const double value =
            ExpressionEngine::CalculateExpress(node.record->m_strExpression, variables);
        if (!std::isnan(value)) {
            SetValue(*node.record, value);
            return;
        }
        const QString reason = ExpressionEngine::LastError();
        const auto bad = std::find_if(node.needs.begin(), node.needs.end(),
                                      [this](int needed) { return At(needed).isBad; });
        if (bad != node.needs.end()) {
            Fail(node,
                 ParameterEvaluator::tr("it uses \"%1\", which has no value").arg(At(*bad).name));
            return;
        }
        Fail(node, reason);
        m_faults.messages.push_back(
            QStringLiteral("%1 = %2: %3").arg(node.name, TextOf(*node.record), reason));
    }

    std::vector<Node> m_nodes;
    std::vector<int> m_path; // From the root of the search to the current node.
    std::vector<int> m_open; // The open nodes, in the order in which they were entered.
    int m_visited = 0;
    ParameterEvaluator::Faults m_faults;
};

} // namespace

ParameterEvaluator::Faults ParameterEvaluator::Evaluate(const QSet<QString>& held)
{
    return Evaluator(held).Run();
}

void ParameterEvaluator::NoteUsedParameters()
{
    const QSet<QString> names = StoredNames();
    for (auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters)
        record.m_strExpressPara = tarn::ParametersIn(TextOf(record), names).join(QLatin1Char(','));
}
