#include "catalogue/GalleryTour.h"

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>

#include <memory>
#include <pages/PageTable.h>

using TARN::Gallery::Page;
using TARN::Gallery::pages;

namespace {

constexpr QSize pageSize(1310, 790);
constexpr int pictureSize = 32;
constexpr int stepsAcross = 3; // meets the ends and the middle of a widget

void sendHover(QWidget &widget, QEvent::Type type, const QPoint &position)
{
    QHoverEvent event(type, position, QPoint(-1, -1));
    QCoreApplication::sendEvent(&widget, &event);
}

/// Paints \a widget without what lies in it: each child has its own turn.
void paint(QWidget &widget)
{
    QPixmap picture(widget.size());
    widget.render(&picture, QPoint(), QRegion(), QWidget::DrawWindowBackground);
}

void hover(QWidget &widget)
{
    widget.setAttribute(Qt::WA_UnderMouse);
    sendHover(widget, QEvent::HoverEnter, widget.rect().center());
    for (int step = 0; step < stepsAcross; ++step) {
        const QPoint position(widget.width() * (2 * step + 1) / (2 * stepsAcross),
                              widget.height() / 2);
        sendHover(widget, QEvent::HoverMove, position);
        paint(widget);
    }
    widget.setAttribute(Qt::WA_UnderMouse, false);
    sendHover(widget, QEvent::HoverLeave, QPoint(-1, -1));
}

void pressMouse(QWidget &widget, const QPoint &position)
{
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, position);
    paint(widget);
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, position);
}

void press(QWidget &widget)
{
    if (auto *button = qobject_cast<QAbstractButton *>(&widget)) {
        // A click would open menus and dialogs.
        button->setDown(true);
        paint(*button);
        button->setDown(false);
    } else if (auto *comboBox = qobject_cast<QComboBox *>(&widget)) {
        comboBox->showPopup();
        paint(*comboBox);
        paint(*comboBox->view());
        comboBox->hidePopup();
    } else if (auto *view = qobject_cast<QAbstractItemView *>(&widget)) {
        view->selectAll();
        paint(*view);
    } else if (qobject_cast<QAbstractSlider *>(&widget) || qobject_cast<QTabBar *>(&widget)) {
        pressMouse(widget, widget.rect().center());
    } else if (qobject_cast<QAbstractSpinBox *>(&widget)) {
        const int buttons = widget.width() - 6;
        pressMouse(widget, QPoint(buttons, widget.height() / 4));
        pressMouse(widget, QPoint(buttons, widget.height() * 3 / 4));
    }
}

void focus(QWidget &widget)
{
    if (widget.focusPolicy() != Qt::NoFocus) {
        widget.setFocus(Qt::TabFocusReason);
        paint(widget);
    }
}

void show(QWidget &window)
{
    window.resize(window.sizeHint().expandedTo(pageSize));
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCoreApplication::processEvents();
}

/// Cuts the pictures of labels: disabled ones are tinted pixel by pixel, at every painting.
void cutPictures(const QWidget &contents)
{
    for (auto *label : contents.findChildren<QLabel *>()) {
        const QPixmap picture = label->pixmap(Qt::ReturnByValue);
        if (!picture.isNull()) {
            label->setPixmap(picture.copy(0, 0, pictureSize, pictureSize));
        }
    }
}

void tourPage(const Page &page)
{
    const std::unique_ptr<QWidget> contents(page.create());
    cutPictures(*contents);
    show(*contents);
    contents->grab();
    for (const QPointer<QWidget> widget : contents->findChildren<QWidget *>()) {
        for (void (*visit)(QWidget &) : {hover, press, focus}) {
            if (widget && widget->isVisible()) {
                visit(*widget);
            }
        }
    }
    contents->setEnabled(false);
    contents->grab();
}

} // namespace

void tourGallery()
{
    for (const Page &page : pages()) {
        tourPage(page);
    }
}
