#include "BrepFile.h"

#include "BuildError.h"
#include "WholeFile.h"

#include <BRepTools.hxx>
#include <QFileInfo>

#include <sstream>

void WriteBrepFile(const TopoDS_Shape& shape, const QString& path)
{
    constexpr bool WithTriangles = false;
    constexpr bool WithNormals = false;
    std::ostringstream text;
    BRepTools::Write(shape, text, WithTriangles, WithNormals, TopTools_FormatVersion_CURRENT);
    tarn::WholeFile file(path);
    if (!file.Write(QByteArray::fromStdString(text.str())))
        throw BuildError(QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), file.Error()));
}
