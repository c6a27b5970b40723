#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/Symbols.h"

#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

namespace TARN::Gallery {

namespace {

QPushButton *defaultButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setDefault(true);
    return button;
}

QPushButton *flatButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setFlat(true);
    return button;
}

QPushButton *checkableButton(const QString &text, bool checked)
{
    auto *button = new QPushButton(text);
    button->setCheckable(true);
    button->setChecked(checked);
    return button;
}

QPushButton *menuButton(const QString &text, const QIcon &icon = QIcon())
{
    auto *button = new QPushButton(icon, text);
    auto *menu = new QMenu(button);
    menu->addAction("As PDF document…"_s);
    menu->addAction("As spreadsheet…"_s);
    menu->addSeparator();
    menu->addAction("Choose format…"_s);
    button->setMenu(menu);
    return button;
}

QPushButton *iconButton(const QString &icon, const QString &text)
{
    return new QPushButton(symbol(icon), text);
}

QWidget *plainButtons()
{
    return row({new QPushButton("&Measure"_s), defaultButton("&Apply"_s), flatButton("S&kip"_s)});
}

QWidget *checkableButtons()
{
    return row({checkableButton("Live image"_s, false), checkableButton("Overlay"_s, true)});
}

QWidget *iconButtons()
{
    QPushButton *checked = iconButton("view.show"_s, "Show grid"_s);
    checked->setCheckable(true);
    checked->setChecked(true);
    QPushButton *iconOnly = iconButton("arrow.clockwise"_s, QString());
    iconOnly->setToolTip("Rotate by 90°"_s);
    return row({iconButton("tool.camera"_s, "Acquire"_s), iconButton("action.save"_s, "Save"_s),
                checked, iconOnly});
}

QWidget *menuButtons()
{
    return row({menuButton("Export"_s), menuButton("Report"_s, symbol("file.text"_s))});
}

QWidget *commandLinks()
{
    auto *acquire = new QCommandLinkButton("Acquire a new image"_s,
                                           "Takes a picture with the connected camera."_s);
    auto *open = new QCommandLinkButton("Open an existing image"_s,
                                        "TIFF, PNG, JPEG and raw camera files."_s);
    open->setIcon(symbol("file.folder.open"_s));
    return column({acquire, open});
}

QWidget *buttonBoxes()
{
    auto *dialog = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                        QDialogButtonBox::Apply | QDialogButtonBox::Help);
    auto *save = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Discard |
                                      QDialogButtonBox::Cancel);
    return column({dialog, save});
}

} // namespace

QWidget *createPushButtonsPage()
{
    auto *page = new SamplePage;
    page->addSample("Plain, default and flat"_s, plainButtons);
    page->addSample("Checkable"_s, checkableButtons);
    page->addSample("With an icon"_s, iconButtons);
    page->addSample("With a menu"_s, menuButtons);
    page->addSample("Button boxes"_s, buttonBoxes);
    page->addSample("Command links"_s, commandLinks);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
