#include "BuiltInFiles.h"

#include <QtGlobal>

// The resources of a static library are not registered by themselves. The macro does not work in a
// namespace.
static void RegisterResources()
{
    Q_INIT_RESOURCE(BuiltInFiles);
    Q_INIT_RESOURCE(translations);
}

QString BuiltInPath(const QString& name)
{
    RegisterResources();
    return QStringLiteral(":/") + name;
}
