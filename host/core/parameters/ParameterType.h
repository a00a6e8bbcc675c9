#pragma once

/// What ParametersDef::m_nType says.
enum ParameterType
{
    BoolType,
    ScalarType,
    VectorType,
    TensorType
};
