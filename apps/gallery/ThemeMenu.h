#pragma once

#include <QtWidgets/QMenu>

class QActionGroup;

namespace TARN::Gallery {

/// A menu of the themes that the theme repository offers, of which one is checked.
class ThemeMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ThemeMenu(QWidget *parent = nullptr);

    /// Checks the theme \a name.
    void setCurrentTheme(const QString &name);

Q_SIGNALS:
    /// A theme was chosen by hand.
    void themeChosen(const QString &name);

private:
    QActionGroup *m_group;
};

} // namespace TARN::Gallery
