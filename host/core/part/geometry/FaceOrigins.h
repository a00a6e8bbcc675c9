#pragma once

#include <QStringList>
#include <QVector>
#include <TopoDS_Shape.hxx>

#include <vector>

class QDataStream;

/// What a face of a feature's result was before.
struct FaceOrigin
{
    static constexpr int New = -1;

    int input = New; ///< The place of an input of the feature; New if the feature made the face.
    int number = 0;  ///< Of the face in the input, from 1; of its word if it is new, from 0.

    bool operator==(const FaceOrigin& other) const
    {
        return input == other.input && number == other.number;
    }
    bool operator<(const FaceOrigin& other) const
    {
        return input != other.input ? input < other.input : number < other.number;
    }
};

/// Where the faces of a feature's result come from, as the kernel reported it. Copies are cheap.
///
/// Faces are counted from 1, in the order of TopExp::MapShapes(). Names of features are not part of
/// it, so that it stays right when a feature is renamed.
class FaceOrigins
{
public:
    /// Of how many faces.
    int Count() const { return m_ends.size(); }
    /// Calls @p visit with each origin of @p face. A merged face has several.
    template<class Visit>
    void VisitOrigins(int face, const Visit& visit) const
    {
        for (int place = face == 1 ? 0 : m_ends[face - 2]; place < m_ends[face - 1]; ++place)
            visit(m_origins[place]);
    }
    /// What the kind calls a new face, such as "top".
    const QString& Word(const FaceOrigin& origin) const { return m_words[origin.number]; }

    /// Adds the next face.
    void Append(const std::vector<FaceOrigin>& origins);
    /// Adds a word for new faces, and returns its number.
    int AddWord(const QString& word);

    /// In bytes, as estimated.
    qint64 Size() const;

    friend QDataStream& operator<<(QDataStream& out, const FaceOrigins& origins);
    friend QDataStream& operator>>(QDataStream& in, FaceOrigins& origins);

private:
    QVector<int> m_ends; // Of the origins of each face.
    QVector<FaceOrigin> m_origins;
    QStringList m_words;
};

/// A shape, and where its faces come from.
struct TracedShape
{
    TopoDS_Shape shape;
    FaceOrigins faces;
};
