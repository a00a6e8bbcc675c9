#pragma once

#include "HostError.h"

#include <QCoreApplication>
#include <QString>

struct KVMaterialInfo;

// Materials by name, from the stores that the dialogs share: the system's library and the user's.

/// Why a material cannot be used: one line.
class MaterialError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(MaterialError)

public:
    using HostError::HostError;
};

/// The values of a material as texts, from whichever library it is in.
struct MaterialTexts
{
    QString elasticModulus; ///< In Pa.
    QString poisson;
    QString density; ///< In kg/m3.
};

/// The values of a material.
struct Material
{
    QString name;
    double elasticModulus = 0.0; ///< In Pa; above 0.
    double poisson = 0.0;        ///< Above -1 and below 0.5; solvers fail at both ends.
    double density = 0.0;        ///< In kg/m3; above 0.
};

MaterialTexts TextsOf(const KVMaterialInfo& material);

/// Replaces the material store by the system's library and "UserMaterial.xml" in @p folder, if
/// there is one.
void ReadMaterials(const QString& folder);

/// The material of that name in the store. @throws MaterialError if there is none or one of its
/// values cannot be used
Material MaterialOf(const QString& name);

/// The density of that material in kg/m3, whatever its other values are. @throws MaterialError
double DensityOf(const QString& name);

/// Where the values of that material come from, for users: what the system's library cites, or that
/// it is a material of the user. Empty if the store does not have the material.
QString SourceOf(const QString& name);
