#pragma once

#include <QtCore/QList>
#include <QtGui/QPalette>

/// Returns the roles whose brushes in \a group differ between two palettes.
inline QList<QPalette::ColorRole> changedRoles(QPalette::ColorGroup group, const QPalette &first,
                                               const QPalette &second)
{
    QList<QPalette::ColorRole> roles;
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const auto colorRole = QPalette::ColorRole(role);
        if (first.brush(group, colorRole) != second.brush(group, colorRole)) {
            roles << colorRole;
        }
    }
    return roles;
}
