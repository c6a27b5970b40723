#include "catalogue/ButtonBrushTour.h"

#include <catalogue/Catalogue.h>
#include <catalogue/Words.h>
#include <style/BaseStyle.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

namespace {

using TARN::BaseStyle;

void askInState(QStyle::State state, const QWidget &widget)
{
    QStyleOption plain;
    plain.state = state;
    BaseStyle::buttonBrushes(&plain, &widget);

    QStyleOptionToolButton toolButton;
    toolButton.state = state;
    toolButton.subControls = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
    BaseStyle::buttonBrushes(&toolButton, &widget);

    using Button = QStyleOptionButton;
    for (const Button::ButtonFeatures features :
         {Button::ButtonFeatures(Button::None), Button::ButtonFeatures(Button::DefaultButton),
          Button::ButtonFeatures(Button::Flat), Button::DefaultButton | Button::Flat}) {
        Button pushButton;
        pushButton.state = state;
        pushButton.features = features;
        BaseStyle::buttonBrushes(&pushButton, &widget);
    }
}

void askInAllStates(const QWidget &widget)
{
    for (const QStyle::State check : {QStyle::State_None, QStyle::State_On}) {
        for (const QStyle::State interaction :
             {QStyle::State_None, QStyle::State_MouseOver, QStyle::State_Sunken}) {
            askInState(QStyle::State_Enabled | QStyle::State_Active | check | interaction, widget);
        }
    }
}

void setFrame(QWidget &widget, bool frame)
{
    widget.setProperty("frame", frame);
}

/// Has the brushes of \a widget chosen in each of the forms that its properties give it.
void askInAllForms(QWidget &widget)
{
    askInAllStates(widget);
    for (const char *form : {"checkable", "outline", "blinking", "blink_checked"}) {
        widget.setProperty(form, true);
        askInAllStates(widget);
    }
    for (const char *form : {"checkable", "outline", "blinking", "blink_checked"}) {
        widget.setProperty(form, false);
    }
    setFrame(widget, false);
    askInAllStates(widget);
    setFrame(widget, true);
}

void setKind(QWidget &widget, const QString &kind)
{
    const bool isHighlighted = kind == TARN::Words::highlighted;
    widget.setProperty("highlighted", isHighlighted);
    widget.setProperty("ButtonType", isHighlighted ? QString() : kind);
}

void askInAllKinds(QWidget &widget)
{
    for (const QString &kind : TARN::Catalogue::kinds()) {
        setKind(widget, kind);
        for (const bool enabled : {true, false}) {
            widget.setEnabled(enabled);
            askInAllForms(widget);
        }
    }
}

template <typename Button>
void askForButtonIn(QWidget &parent)
{
    Button button(&parent);
    askInAllKinds(button);
    button.setProperty("checked", true);
    askInAllKinds(button);
}

template <typename Button>
void askForButtons()
{
    QWidget window;
    askForButtonIn<Button>(window);
    QTabBar tabBar;
    askForButtonIn<Button>(tabBar);
    QWidget workflow;
    workflow.setProperty("ButtonGroupWidget_Workflow", true);
    askForButtonIn<Button>(workflow);
    workflow.setProperty("ButtonGroupWidget_Exclusive", true);
    askForButtonIn<Button>(workflow);
}

} // namespace

void tourButtonBrushes()
{
    askForButtons<QPushButton>();
    askForButtons<QToolButton>();
    askForButtons<QCommandLinkButton>();
    QComboBox comboBox;
    askInAllKinds(comboBox);
    QSpinBox spinBox;
    askInAllKinds(spinBox);
    QDateEdit dateEdit;
    askInAllKinds(dateEdit);
    dateEdit.setCalendarPopup(true);
    askInAllKinds(dateEdit);
}
