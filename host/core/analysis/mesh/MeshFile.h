#pragma once

#include "HostError.h"
#include "Mesh.h"

#include <QCoreApplication>
#include <QString>

/// Why a mesh cannot be read: one line.
class MeshError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(MeshError)

public:
    using HostError::HostError;
};

/// Reads a text file of the mesher's format 2.2. Nodes that belong to no element are left out.
/// @throws MeshError if the file cannot be read, is damaged or has no elements
Mesh ReadMeshFile(const QString& path);
