#include "ThemeMenu.h"

#include "samples/Literals.h"

#include <theme/ThemeFactory.h>

#include <QtWidgets/QActionGroup>

namespace TARN::Gallery {

ThemeMenu::ThemeMenu(QWidget *parent)
    : QMenu("&Theme"_s, parent)
    , m_group(new QActionGroup(this))
{
    for (const QString &name : ThemeFactory::getInstance()->getAvailableThemes()) {
        QAction *action = m_group->addAction(name);
        action->setData(name);
        action->setCheckable(true);
        addAction(action);
    }
    connect(m_group, &QActionGroup::triggered, this,
            [this](QAction *action) { Q_EMIT themeChosen(action->data().toString()); });
}

void ThemeMenu::setCurrentTheme(const QString &name)
{
    for (QAction *action : m_group->actions()) {
        action->setChecked(action->data().toString() == name);
    }
}

} // namespace TARN::Gallery
