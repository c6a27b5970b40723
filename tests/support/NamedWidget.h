#pragma once

#include <QtWidgets/QWidget>

/// Tells that it is a class of which only the name is known.
class NamedWidget : public QWidget
{
public:
    explicit NamedWidget(const QByteArray &className)
        : m_className(className)
    {
    }

    void *qt_metacast(const char *className) override
    {
        return m_className == className ? this : QWidget::qt_metacast(className);
    }

private:
    QByteArray m_className;
};
