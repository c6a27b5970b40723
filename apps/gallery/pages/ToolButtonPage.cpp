#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/Symbols.h"

#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

namespace TARN::Gallery {

namespace {

QToolButton *toolButton(const QString &icon, const QString &text, Qt::ToolButtonStyle style)
{
    auto *button = new QToolButton;
    button->setIcon(symbol(icon));
    button->setText(text);
    button->setToolTip(text);
    button->setToolButtonStyle(style);
    return button;
}

QToolButton *popupButton(const QString &text, QToolButton::ToolButtonPopupMode mode)
{
    QToolButton *button = toolButton("tool.ruler"_s, text, Qt::ToolButtonTextBesideIcon);
    auto *menu = new QMenu(button);
    menu->addAction(symbol("tool.ruler"_s), "Distance"_s);
    menu->addAction(symbol("measure.angle"_s), "Angle"_s);
    menu->addAction(symbol("measure.area"_s), "Area"_s);
    button->setMenu(menu);
    button->setPopupMode(mode);
    return button;
}

QToolButton *checked(QToolButton *button)
{
    button->setCheckable(true);
    button->setChecked(true);
    return button;
}

QToolButton *arrowButton(Qt::ArrowType arrow)
{
    auto *button = new QToolButton;
    button->setArrowType(arrow);
    return button;
}

QWidget *styles()
{
    return row({toolButton("file.folder.open"_s, "Open"_s, Qt::ToolButtonIconOnly),
                toolButton("file.folder.open"_s, "Open"_s, Qt::ToolButtonTextOnly),
                toolButton("file.folder.open"_s, "Open"_s, Qt::ToolButtonTextBesideIcon),
                toolButton("file.folder.open"_s, "Open"_s, Qt::ToolButtonTextUnderIcon)});
}

QWidget *popupModes()
{
    return row({popupButton("Delayed"_s, QToolButton::DelayedPopup),
                popupButton("Menu button"_s, QToolButton::MenuButtonPopup),
                popupButton("Instant"_s, QToolButton::InstantPopup)});
}

QWidget *checkables()
{
    QToolButton *off = toolButton("tool.crop"_s, "Crop"_s, Qt::ToolButtonIconOnly);
    off->setCheckable(true);
    return row({off, checked(toolButton("tool.pen"_s, "Draw"_s, Qt::ToolButtonIconOnly)),
                checked(toolButton("view.layer"_s, "Layers"_s, Qt::ToolButtonTextBesideIcon))});
}

QWidget *autoRaised()
{
    QList<QWidget *> buttons;
    for (const QString &name :
         {"viewer.zoom.in"_s, "viewer.zoom.out"_s, "viewer.zoom.fit"_s, "arrow.clockwise"_s}) {
        QToolButton *button = toolButton(name, name, Qt::ToolButtonIconOnly);
        button->setAutoRaise(true);
        buttons.append(button);
    }
    checked(qobject_cast<QToolButton *>(buttons.constLast()));
    return row(buttons);
}

QWidget *arrows()
{
    return row({arrowButton(Qt::LeftArrow), arrowButton(Qt::UpArrow), arrowButton(Qt::DownArrow),
                arrowButton(Qt::RightArrow)});
}

QWidget *largeIcons()
{
    QToolButton *beside = toolButton("tool.camera"_s, "Acquire"_s, Qt::ToolButtonTextBesideIcon);
    QToolButton *under = toolButton("chart.column"_s, "Histogram"_s, Qt::ToolButtonTextUnderIcon);
    for (QToolButton *button : {beside, under}) {
        button->setIconSize({32, 32});
    }
    return row({beside, under});
}

} // namespace

QWidget *createToolButtonsPage()
{
    auto *page = new SamplePage;
    page->addSample("Icon only, text only, text beside and under the icon"_s, styles);
    page->addSample("Popup modes"_s, popupModes);
    page->addSample("Checkable"_s, checkables);
    page->addSample("Auto-raised"_s, autoRaised);
    page->addSample("Arrows"_s, arrows);
    page->addSample("Large icons"_s, largeIcons);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
