#pragma once

#include <QByteArray>

class TopoDS_Shape;

// The text of STEP files. Both directions use the same settings of the kernel.

/// Translates @p shape, in millimetres. @throws StepError, Standard_Failure
QByteArray StepText(const TopoDS_Shape& shape);

/// The shape in the STEP file with the content @p text, in millimetres. Several bodies are returned
/// as a compound. @throws StepError, also if a part of the shape is missing or if a body is not a
/// closed solid; Standard_Failure
TopoDS_Shape ShapeFromStep(const QByteArray& text);
