#pragma once

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

/// Returns what the base style paints of a control on a black ground.
inline QImage fusionPicture(QStyle::ControlElement element, const QStyleOption &option,
                            const QWidget *widget, const QSize &size)
{
    const QProxyStyle fusion(QStringLiteral("fusion"));
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    fusion.drawControl(element, &option, &painter, widget);
    return picture;
}
