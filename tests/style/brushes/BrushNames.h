#pragma once

#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <support/Text.h>
#include <support/themes/NamedBrushes.h>

/// A published theme, and the names of its brushes that are chosen for a button.
class BrushNames
{
protected:
    QString background(const QStyleOption &option, const QWidget *widget) const
    {
        return m_names.nameOf(TARN::BaseStyle::buttonBrushes(&option, widget).background);
    }

    QString border(const QStyleOption &option, const QWidget *widget) const
    {
        return m_names.nameOf(TARN::BaseStyle::buttonBrushes(&option, widget).border);
    }

    QString foreground(const QStyleOption &option, const QWidget *widget) const
    {
        return m_names.nameOf(TARN::BaseStyle::buttonBrushes(&option, widget).foreground);
    }

    /// Returns the names of background, border and foreground.
    QStringList all(const QStyleOption &option, const QWidget *widget) const
    {
        return {background(option, widget), border(option, widget), foreground(option, widget)};
    }

    static QStringList named(const char *prefixAndState)
    {
        const QString name = text(prefixAndState);
        return {name + text("BackgroundBrush"), name + text("BorderBrush"),
                name + text("ForegroundBrush")};
    }

    static void show(QWidget &widget)
    {
        widget.show();
        QApplication::setActiveWindow(&widget);
        QVERIFY(QTest::qWaitForWindowActive(&widget));
    }

private:
    NamedBrushes m_names;
};

inline QStyleOption plain(QStyle::State state)
{
    QStyleOption option;
    option.state = state;
    return option;
}
