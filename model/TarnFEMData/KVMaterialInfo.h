#pragma once

/// @file
/// The record of a material, and where materials come from.

#include <QString>

/// Where a material comes from.
enum MATERIAL_TYPE
{
    MATERIAL_SYSTEM = 0, ///< The system library, which is only read.
    MATERIAL_USER = 1    ///< The user's own materials, read and written.
};

/// One material. Every value is the text that was typed or read, in SI units.
///
/// A user material has its values in the first triple, a system material in the second. Create it
/// with new; the creator owns it until KVMaterialData takes it over.
struct KVMaterialInfo
{
    int m_nType = MATERIAL_SYSTEM;  ///< A MATERIAL_TYPE; other values are kept but not shown.
    QString m_strName;              ///< The material's name; its key in the store.
    QString m_strElasticModulus;    ///< Elastic modulus of a user material, Pa.
    QString m_strPoisson;           ///< Poisson's ratio of a user material.
    QString m_strDensity;           ///< Density of a user material, kg/m^3.
    QString m_strLibElasticModulus; ///< Elastic modulus of a system material, Pa.
    QString m_strLibPoisson;        ///< Poisson's ratio of a system material.
    QString m_strLibDensity;        ///< Density of a system material, kg/m^3.
};
