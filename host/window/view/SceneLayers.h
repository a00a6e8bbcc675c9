#pragma once

#include <AIS_InteractiveObject.hxx>

#include <array>
#include <cstddef>

/// What a view shows besides the part.
enum class SceneLayer
{
    Highlight, ///< A shape in a signal colour.
    Symbols,   ///< Supports and loads.
    Mark,      ///< A point.
    Result     ///< In place of the part.
};

/// The object of each layer; null for none.
using SceneLayers = std::array<Handle(AIS_InteractiveObject), 4>;

inline Handle(AIS_InteractiveObject) & LayerIn(SceneLayers& layers, SceneLayer layer)
{
    return layers[std::size_t(layer)];
}
