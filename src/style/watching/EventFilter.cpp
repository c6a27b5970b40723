#include "style/BaseStyle.h"
#include "style/asking/Properties.h"
#include "style/watching/ButtonIcons.h"
#include "style/watching/UnderlinedKeys.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QToolButton>

namespace TARN {

namespace {

void tintIcon(QWidget &widget)
{
    if (isA(&widget, "QLineEditIconButton")) {
        tintClearButton(static_cast<QToolButton &>(widget));
    } else if (auto *commandLink = qobject_cast<QCommandLinkButton *>(&widget)) {
        tintCommandLink(*commandLink);
    }
}

bool isAlt(const QEvent &event)
{
    return static_cast<const QKeyEvent &>(event).key() == Qt::Key_Alt;
}

} // namespace

bool BaseStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (watched->isWidgetType()) {
        filterWidgetEvent(static_cast<QWidget &>(*watched), *event);
    }
    return QProxyStyle::eventFilter(watched, event);
}

void BaseStyle::filterWidgetEvent(QWidget &widget, const QEvent &event)
{
    switch (event.type()) {
    case QEvent::Paint:
        tintIcon(widget);
        break;
    case QEvent::KeyPress:
        if (isAlt(event)) {
            pressAlt(*widget.window());
        }
        break;
    case QEvent::KeyRelease:
        if (isAlt(event)) {
            releaseAlt(*widget.window());
        }
        break;
    case QEvent::WindowDeactivate:
        // Another window hears the release.
        if (m_altDown) {
            releaseAlt(*widget.window());
        }
        break;
    case QEvent::Close:
        forgetAlt(widget);
        forgetAlt(*widget.window());
        break;
    default:
        break;
    }
}

void BaseStyle::pressAlt(const QWidget &window)
{
    m_altDown = true;
    if (!m_seenAlt.contains(&window)) {
        m_seenAlt.append(&window);
        connect(&window, &QObject::destroyed, this,
                [this, address = &window] { m_seenAlt.removeAll(address); });
    }
    updateMnemonics(window);
}

void BaseStyle::forgetAlt(const QWidget &window)
{
    if (m_seenAlt.removeAll(&window) > 0) {
        disconnect(&window, &QObject::destroyed, this, nullptr);
    }
}

void BaseStyle::releaseAlt(const QWidget &window)
{
    m_altDown = false;
    updateMenuBars(window);
}

} // namespace TARN
