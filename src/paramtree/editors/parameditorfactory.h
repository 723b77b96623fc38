#pragma once

#include "controldata.h"
#include "genparamkind.h"

/// Prepares the editor for a writable feature of \a kind: this is where a type of feature gets its widget.
///
/// Limits, entries and the like are asked here, once. What the camera does not tell is left open, since it
/// judges every write anyway. \return nothing for a kind that has no editor of its own. Nothing that GenApi
/// throws passes.
ControlData prepareEditor(GenApi::IValue& feature, GenParamKind kind);
