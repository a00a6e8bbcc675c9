#include "FaceTrace.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

#include <algorithm>

void FaceTrace::AddInput(int input, const TopoDS_Shape& shape, const TopLoc_Location& place)
{
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    for (int number = 1; number <= faces.Extent(); ++number)
        Add(place.IsIdentity() ? faces(number) : faces(number).Moved(place), {{input, number}});
}

void FaceTrace::AddNew(const TopoDS_Shape& face, const QString& word)
{
    Add(face, {NewFace(word)});
}

void FaceTrace::KeepOnly(const TopoDS_Shape& shape)
{
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    Faces before;
    before.Exchange(m_faces);
    for (int number = 1; number <= faces.Extent(); ++number) {
        const Origins* const known = before.Seek(faces(number));
        if (known != nullptr)
            m_faces.Bind(faces(number), *known);
    }
}

TracedShape FaceTrace::Of(const TopoDS_Shape& shape, const QString& wordOfOthers)
{
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    TracedShape traced;
    traced.shape = shape;
    const Origins others = wordOfOthers.isEmpty() ? Origins() : Origins{NewFace(wordOfOthers)};
    for (const QString& word : qAsConst(m_words))
        traced.faces.AddWord(word);
    for (int number = 1; number <= faces.Extent(); ++number) {
        const Origins* const known = m_faces.Seek(faces(number));
        Origins origins = known == nullptr ? others : *known;
        // The map has no order of its own.
        std::sort(origins.begin(), origins.end());
        traced.faces.Append(origins);
    }
    return traced;
}

void FaceTrace::Add(const TopoDS_Shape& face, const Origins& origins)
{
    Origins* const known = m_faces.ChangeSeek(face);
    if (known == nullptr) {
        m_faces.Bind(face, origins);
        return;
    }
    for (const FaceOrigin& origin : origins) {
        if (std::find(known->begin(), known->end(), origin) == known->end())
            known->push_back(origin);
    }
}

FaceOrigin FaceTrace::NewFace(const QString& word)
{
    const auto known = m_numbers.constFind(word);
    if (known != m_numbers.cend())
        return {FaceOrigin::New, *known};
    m_numbers.insert(word, m_words.size());
    m_words.append(word);
    return {FaceOrigin::New, m_words.size() - 1};
}
