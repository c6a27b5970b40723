#pragma once

#include <QtCore/QMetaType>

#include <generator/tokens/Tokens.h>

Q_DECLARE_METATYPE(TARN::ThemeTool::Tokens)

/// Adds a column "tokens" and the shipped themes, a row each.
void addShippedRows();

/// Adds what addShippedRows() does, and some themes of accents that nobody has looked at.
void addManyRows();
