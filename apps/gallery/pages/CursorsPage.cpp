#include "pages/Pages.h"
#include "samples/Literals.h"

#include <resources/ThemeResources.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QCursor>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace TARN::Gallery {

namespace {

constexpr int Columns = 7;
constexpr int PictureSize = 32;
constexpr int TrialHeight = 120;

/// Returns the names of all cursors, the theme's own and those of the library.
QStringList cursorNames()
{
    QStringList names;
    for (const QString &folder : QDir::searchPaths(ThemeResources::cursorsPrefix())) {
        for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files)) {
            names.append(file.completeBaseName());
        }
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

/// A button that shows a cursor, and has it while the mouse is over it.
QToolButton *cursorButton(const QString &name)
{
    const QCursor cursor = ThemeResources::getCursor(name);
    auto *button = new QToolButton;
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setAutoRaise(true);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    button->setIcon(QIcon(cursor.pixmap()));
    button->setIconSize(QSize(PictureSize, PictureSize));
    button->setText(name);
    button->setCursor(cursor);
    button->setToolTip(
        "Points with the pixel at %1, %2"_s.arg(cursor.hotSpot().x()).arg(cursor.hotSpot().y()));
    return button;
}

/// A place of its own for trying the cursor that was chosen last.
QLabel *trialPlace()
{
    auto *label = new QLabel("Choose a cursor above, and try it here"_s);
    label->setAlignment(Qt::AlignCenter);
    label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    label->setMinimumHeight(TrialHeight);
    return label;
}

} // namespace

QWidget *createCursorsPage()
{
    auto *page = new QWidget;
    auto *trial = trialPlace();
    auto *tiles = new QWidget;
    auto *grid = new QGridLayout(tiles);
    grid->setContentsMargins(0, 0, 0, 0);
    int index = 0;
    for (const QString &name : cursorNames()) {
        QToolButton *button = cursorButton(name);
        QObject::connect(button, &QToolButton::clicked, trial, [trial, button] {
            trial->setCursor(button->cursor());
            trial->setText(button->text());
        });
        grid->addWidget(button, index / Columns, index % Columns);
        ++index;
    }
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(tiles);
    layout->addWidget(trial, 1);
    return page;
}

} // namespace TARN::Gallery
