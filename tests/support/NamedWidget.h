#pragma once

#include <QtWidgets/QWidget>

/// A widget that tells that it is of a class besides, of which only the name is known.
template <typename Base>
class Named : public Base
{
public:
    explicit Named(const QByteArray &className)
        : m_className(className)
    {
    }

    void *qt_metacast(const char *className) override
    {
        return m_className == className ? this : Base::qt_metacast(className);
    }

private:
    QByteArray m_className;
};

using NamedWidget = Named<QWidget>;

/// A widget that tells of no class that it is of it.
template <typename Base>
class Nameless : public Base
{
public:
    void *qt_metacast(const char * /*className*/) override { return nullptr; }
};
