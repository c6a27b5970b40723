#include "support/Variables.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QBrush>
#include <QtGui/QColor>

#include <support/TestedMode.h>

void publishVariables(const QVariantMap &groups)
{
    QCoreApplication::instance()->setProperty("theme_var", groups);
    enterTestedMode(groups);
}

void publishFactors(const QVariantMap &factors)
{
    QCoreApplication::instance()->setProperty("theme_var_internal",
                                              QVariantMap{{QStringLiteral("factors"), factors}});
}

QVariantMap brushGroup(const QMap<QString, QString> &colors)
{
    QVariantMap group;
    for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
        group.insert(it.key(), QBrush(QColor(it.value())));
    }
    return group;
}

QVariantMap colorGroup(const QMap<QString, QString> &colors)
{
    QVariantMap group;
    for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
        group.insert(it.key(), QColor(it.value()));
    }
    return group;
}
