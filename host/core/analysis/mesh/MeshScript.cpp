#include "MeshScript.h"

#include "NumberTexts.h"

#include <QStringList>

namespace {

QString Numbers(const std::vector<int>& numbers)
{
    QStringList texts;
    for (const int number : numbers)
        texts << QString::number(number);
    return texts.join(QStringLiteral(", "));
}

// Sizes hold on the faces and edges of a field; where fields overlap, the least one counts.
void AddSizes(const std::vector<LocalMesh>& local, QStringList& lines)
{
    std::vector<int> fields;
    for (const LocalMesh& mesh : local) {
        if (!(mesh.size > 0.0))
            continue;
        const int size = 2 * int(fields.size()) + 1;
        const int field = size + 1;
        const auto add = [&lines](int number, const QString& rest) {
            lines << QStringLiteral("Field[%1]%2;").arg(number).arg(rest);
        };
        add(size, QStringLiteral(" = MathEval"));
        add(size, QStringLiteral(".F = \"%1\"").arg(ExactText(mesh.size)));
        add(field, QStringLiteral(" = Restrict"));
        add(field, QStringLiteral(".InField = %1").arg(size));
        // Edges have their nodes before faces do, so those around a face need the size, too.
        QStringList edges;
        if (!mesh.faces.empty()) {
            add(field, QStringLiteral(".SurfacesList = {%1}").arg(Numbers(mesh.faces)));
            edges << QStringLiteral("Abs(Boundary{ Surface{%1}; })").arg(Numbers(mesh.faces));
        }
        if (!mesh.edges.empty())
            edges << Numbers(mesh.edges);
        add(field, QStringLiteral(".CurvesList = {%1}").arg(edges.join(QStringLiteral(", "))));
        fields.push_back(field);
    }
    if (fields.empty())
        return;
    const int least = 2 * int(fields.size()) + 1;
    lines << QStringLiteral("Field[%1] = Min;").arg(least)
          << QStringLiteral("Field[%1].FieldsList = {%2};").arg(least).arg(Numbers(fields))
          << QStringLiteral("Background Field = %1;").arg(least);
}

} // namespace

QByteArray MeshScript(const MeshRequest& request)
{
    QStringList lines;
    lines << QStringLiteral("Merge \"%1\";").arg(request.shapeFile)
          << QStringLiteral("Mesh.MeshSizeMax = %1;").arg(ExactText(request.size))
          // Otherwise small parts get smaller elements than asked for.
          << QStringLiteral("Mesh.MeshSizeFromPoints = 0;")
          << QStringLiteral("Mesh.MeshSizeFromCurvature = 8;")
          << QStringLiteral("Mesh.ElementOrder = 2;")
          << QStringLiteral("Mesh.SecondOrderIncomplete = 1;")
          // Other algorithms crash on plane faces, or give another mesh each time.
          << QStringLiteral("Mesh.Algorithm = 6;") << QStringLiteral("Mesh.Algorithm3D = 1;")
          << QStringLiteral("Mesh.SaveAll = 1;") << QStringLiteral("Mesh.MshFileVersion = 2.2;");
    AddSizes(request.local, lines);
    for (const LocalMesh& mesh : request.local) {
        // Counted are the nodes.
        if (mesh.number > 0)
            lines << QStringLiteral("Transfinite Curve {%1} = %2;")
                         .arg(Numbers(mesh.edges))
                         .arg(mesh.number + 1);
    }
    if (!request.shellFaces.empty())
        lines << QStringLiteral("Mesh.RecombineAll = 1;")
              << QStringLiteral("Mesh.MeshOnlyVisible = 1;")
              << QStringLiteral("Hide { Volume{:}; Surface{:}; Curve{:}; Point{:}; }")
              << QStringLiteral("Recursive Show { Surface{%1}; }").arg(Numbers(request.shellFaces));
    return lines.join(QLatin1Char('\n')).toLatin1() + '\n';
}
