#pragma once

#include "FaceOrigins.h"
#include "Outline.h"

#include <QString>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax1.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

#include <TopLoc_Location.hxx>

#include <functional>
#include <vector>

struct FeatureKind;

/// What a feature's body is built from: the values of its fields, and the bodies that it uses.
class BuildInput
{
public:
    /// An earlier feature.
    struct Body
    {
        QString name;
        TopoDS_Shape shape; ///< Null if the feature is suppressed and has no input itself.
    };

    /// What only some kinds have.
    struct Extras
    {
        QString file; ///< A path.
        Outline outline;
        /// Find faces and edges of the first body. @throws BuildError
        std::function<std::vector<int>()> findFaces;
        std::function<std::vector<int>()> findEdges;
    };

    /// @p values are those of the fields of @p kind, each within its rule.
    BuildInput(const FeatureKind& kind, std::vector<double> values, std::vector<Body> bodies,
               Extras extras = {});

    /// The value of the field called @p key in files.
    double Value(const char* key) const;
    int Count(const char* key) const { return int(Value(key)); }
    double Radians(const char* key) const;

    /// Of x, y and z.
    gp_Pnt Point() const;
    /// Of dx, dy and dz. @throws BuildError if all are 0
    gp_Dir Direction() const;
    /// Of a kind that is placed.
    TopLoc_Location Placement() const;
    /// Through Point() along Direction().
    gp_Ax1 Axis() const { return gp_Ax1(Point(), Direction()); }

    /// Of all inputs, in their order.
    const std::vector<Body>& Inputs() const { return m_bodies; }
    /// The body of the first input. @throws BuildError if there is none
    const TopoDS_Shape& FirstBody() const;
    /// The bodies of the other inputs, without those that are null.
    std::vector<TopoDS_Shape> OtherBodies() const;

    /// The bodies of all inputs, without those that are null.
    std::vector<TopoDS_Shape> Bodies() const;

    /// The first input as the result.
    TracedShape Unchanged() const { return Placed({}); }
    /// The first input at @p place as the result.
    TracedShape Placed(const TopLoc_Location& place) const;

    const QString& File() const { return m_extras.file; }
    const Outline& Profile() const { return m_extras.outline; }
    /// The faces that the feature is at, of the first body; at least one. @throws BuildError
    std::vector<TopoDS_Face> Faces() const;
    /// The edges that it is at, as well.
    std::vector<TopoDS_Edge> Edges() const;

private:
    std::vector<TopoDS_Shape> BodiesFrom(std::size_t first) const;

    const FeatureKind& m_kind;
    std::vector<double> m_values;
    std::vector<Body> m_bodies;
    Extras m_extras;
};
