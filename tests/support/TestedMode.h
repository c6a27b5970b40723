#pragma once

#include <QtCore/QVariantMap>

/// Tells whether this process tests the complete mode; see BOTH_MODES in cmake/MoxQtTest.cmake.
bool testsCompleteMode();

/// Has styles that are made from now on be those of the mode that this process tests: the complete
/// one is that of an applied theme. \a variables stand in for those which that theme publishes.
void enterTestedMode(const QVariantMap &variables = {});
