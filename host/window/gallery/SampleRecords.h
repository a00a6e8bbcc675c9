#pragma once

#include "CQLTElemPropDef.h"
#include "sLoadForceData.h"

#include <QString>

/// The records that the pictures of the dialogs show.

/// A material of the system library.
QString SampleMaterial();

/// A shell of the sample material; the thickness is in metres.
CQLTElemPropDef SampleProperty(const QString& name, double thickness);

sLoadForceData SampleLoad();
