#include "StepCheck.h"

#include "Bodies.h"
#include "Limits.h"
#include "StepError.h"

#include <BRepBndLib.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <Interface_Check.hxx>
#include <Interface_CheckIterator.hxx>
#include <Interface_InterfaceModel.hxx>
#include <QByteArray>
#include <QSet>
#include <StepRepr_RepresentationItem.hxx>
#include <StepShape_Face.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Shape.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <Transfer_Binder.hxx>
#include <Transfer_TransientProcess.hxx>

#include <cctype>
#include <cmath>

namespace {

QString TypeName(const TopoDS_Shape& shape)
{
    switch (shape.ShapeType()) {
    case TopAbs_SHELL:
        return StepError::tr("a shell");
    case TopAbs_FACE:
        return StepError::tr("a face");
    case TopAbs_WIRE:
        return StepError::tr("a wire");
    case TopAbs_EDGE:
        return StepError::tr("an edge");
    default:
        return StepError::tr("a point");
    }
}

void CheckExtent(const TopoDS_Shape& shape)
{
    Bnd_Box box;
    BRepBndLib::Add(shape, box);
    if (box.IsVoid())
        throw StepError(StepError::tr("contains no shape"));
    for (const gp_Pnt& corner : {box.CornerMin(), box.CornerMax()}) {
        for (int axis = 1; axis <= 3; ++axis) {
            // Negated, so that NaN is refused as well.
            if (!(std::abs(corner.Coord(axis)) <= MaximumLength))
                throw StepError(StepError::tr("contains a shape that extends beyond 1000 m"));
        }
    }
}

void CheckClosed(const TopoDS_Shape& body, int number)
{
    if (body.ShapeType() != TopAbs_SOLID && body.ShapeType() != TopAbs_COMPSOLID)
        throw StepError(StepError::tr("its shape %1 is %2, but only closed solids can be used")
                            .arg(number)
                            .arg(TypeName(body)));
    for (TopExp_Explorer shells(body, TopAbs_SHELL); shells.More(); shells.Next()) {
        if (!BRep_Tool::IsClosed(shells.Current()))
            throw StepError(
                StepError::tr("its body %1 is not closed: a face may be missing").arg(number));
    }
}

// The place after the string or comment that begins at @p place, if one does.
int AfterText(const QByteArray& text, int place)
{
    if (text[place] == '\'') {
        const int end = text.indexOf('\'', place + 1);
        return end < 0 ? text.size() : end + 1;
    }
    if (text[place] == '/' && text.mid(place, 2) == "/*") {
        const int end = text.indexOf("*/", place + 2);
        return end < 0 ? text.size() : end + 2;
    }
    return place;
}

} // namespace

void CheckStepReferences(const QByteArray& text)
{
    QSet<quint64> defined;
    QSet<quint64> used;
    bool isFirst = true; // In a statement.
    for (int place = 0; place < text.size(); ++place) {
        const int after = AfterText(text, place);
        if (after > place) {
            place = after - 1;
            continue;
        }
        if (text[place] == '#') {
            quint64 number = 0;
            while (place + 1 < text.size() && text[place + 1] >= '0' && text[place + 1] <= '9')
                number = 10 * number + quint64(text[++place] - '0');
            if (isFirst && defined.contains(number))
                throw StepError(StepError::tr("defines the entity #%1 twice").arg(number));
            (isFirst ? defined : used).insert(number);
        }
        if (text[place] == ';')
            isFirst = true;
        else if (!std::isspace(static_cast<unsigned char>(text[place])))
            isFirst = false;
    }
    if (!defined.contains(used))
        throw StepError(StepError::tr("refers to entities that it does not contain"));
}

void CheckStepEntities(XSControl_WorkSession& session)
{
    if (session.Model()->NbEntities() == 0)
        throw StepError(StepError::tr("contains no shape"));
    Interface_CheckIterator checks = session.ModelCheckList();
    for (checks.Start(); checks.More(); checks.Next()) {
        if (!checks.Value()->HasFailed())
            continue;
        const Handle(Standard_Transient) entity = checks.Value()->Entity();
        const QString failure = QString::fromLatin1(checks.Value()->CFail(1)).simplified();
        // Of the file as a whole.
        if (entity.IsNull())
            throw StepError(StepError::tr("is damaged: %1").arg(failure));
        // Descriptions beside the shape may be odd.
        if (entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationItem)))
            throw StepError(StepError::tr("its entity #%1 cannot be read: %2")
                                .arg(session.Model()->Number(entity))
                                .arg(failure));
    }
}

void CheckStepFaces(const XSControl_WorkSession& session)
{
    const Handle(Transfer_TransientProcess) process = session.TransferReader()->TransientProcess();
    for (int index = 1; index <= process->NbMapped(); ++index) {
        const Handle(Standard_Transient) entity = process->Mapped(index);
        if (!entity->IsKind(STANDARD_TYPE(StepShape_Face)))
            continue;
        const Handle(Transfer_Binder) binder = process->MapItem(index);
        if (binder.IsNull() || !binder->HasResult())
            throw StepError(StepError::tr("its face #%1 cannot be translated")
                                .arg(session.Model()->Number(entity)));
    }
}

void CheckStepBodies(const TopoDS_Shape& shape)
{
    if (shape.IsNull())
        throw StepError(StepError::tr("contains no shape"));
    CheckExtent(shape);
    int number = 0;
    VisitBodies(shape, [&](const TopoDS_Shape& body) { CheckClosed(body, ++number); });
}
