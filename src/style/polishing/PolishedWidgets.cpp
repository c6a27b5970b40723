#include "style/polishing/PolishedWidgets.h"

#include <QtWidgets/QWidget>

namespace TARN {

void PolishedWidgets::add(QWidget &widget, const Undo &undo)
{
    if (undo.isEmpty()) {
        return;
    }
    if (!m_undos.contains(&widget)) {
        QObject::connect(&widget, &QObject::destroyed, &m_context,
                         [this, address = &widget] { m_undos.remove(address); });
    }
    m_undos[&widget].append(undo);
}

void PolishedWidgets::takeBack(QWidget &widget)
{
    if (m_undos.contains(&widget)) {
        QObject::disconnect(&widget, &QObject::destroyed, &m_context, nullptr);
        m_undos.take(&widget).run();
    }
}

void PolishedWidgets::takeBackAll()
{
    while (!m_undos.isEmpty()) {
        takeBack(*m_undos.constBegin().key());
    }
}

} // namespace TARN
