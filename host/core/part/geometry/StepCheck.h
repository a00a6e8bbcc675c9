#pragma once

class QByteArray;
class TopoDS_Shape;
class XSControl_WorkSession;

// Checks of a STEP file that is being read: the kernel leaves out what it cannot read.

/// Checks that the entities in @p text are defined once and refer to defined ones only. On other
/// files the kernel may crash or never end. @throws StepError
void CheckStepReferences(const QByteArray& text);

/// Checks the geometry and topology that was read. @throws StepError if it refers to missing
/// entities or contains one that cannot be read
void CheckStepEntities(XSControl_WorkSession& session);

/// Checks that each face was translated. @throws StepError
void CheckStepFaces(const XSControl_WorkSession& session);

/// Checks that there are bodies, all closed solids within the limit of lengths. @throws StepError
void CheckStepBodies(const TopoDS_Shape& shape);
