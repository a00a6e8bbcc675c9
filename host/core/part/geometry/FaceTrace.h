#pragma once

#include "FaceOrigins.h"

#include <NCollection_DataMap.hxx>
#include <QHash>
#include <TopTools_ListOfShape.hxx>
#include <TopTools_ShapeMapHasher.hxx>

#include <TopLoc_Location.hxx>

/// Follows faces through the operations of the kernel while a feature is built.
class FaceTrace
{
public:
    /// Adds the faces of @p shape, an input of the feature; they are at @p place from now on.
    void AddInput(int input, const TopoDS_Shape& shape, const TopLoc_Location& place = {});
    /// Adds a face that the feature makes. A face that is added twice has both words.
    void AddNew(const TopoDS_Shape& face, const QString& word);

    /// Forgets faces that @p shape does not have. Copies and mirrors know no others.
    void KeepOnly(const TopoDS_Shape& shape);

    /// Replaces each face by what @p operation, whose history the kernel has kept, made of it.
    template<class Operation>
    void Follow(Operation& operation)
    {
        Faces before;
        before.Exchange(m_faces);
        for (Faces::Iterator face(before); face.More(); face.Next()) {
            const TopTools_ListOfShape& pieces = operation.Modified(face.Key());
            // Of a face that is gone, no shape asks for the origins.
            if (pieces.IsEmpty())
                Add(face.Key(), face.Value());
            for (const TopoDS_Shape& piece : pieces)
                Add(piece, face.Value());
        }
    }

    /// @p shape with the origins of its faces. Faces that nobody has added are new and called
    /// @p wordOfOthers; if that is empty, they have no origin.
    TracedShape Of(const TopoDS_Shape& shape, const QString& wordOfOthers = QString());

private:
    using Origins = std::vector<FaceOrigin>;
    using Faces = NCollection_DataMap<TopoDS_Shape, Origins, TopTools_ShapeMapHasher>;

    void Add(const TopoDS_Shape& face, const Origins& origins);
    FaceOrigin NewFace(const QString& word);

    Faces m_faces;
    QStringList m_words;
    QHash<QString, int> m_numbers; // Of the words.
};
