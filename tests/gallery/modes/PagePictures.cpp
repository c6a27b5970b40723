#include "gallery/modes/PagePictures.h"

#include "Settling.h"

#include <theme/BaseTheme.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidget>

#include <support/pictures/TextlessPicture.h>

namespace {

// What the gallery's window leaves to a page.
constexpr QSize roomForAPage(1310, 790);

} // namespace

ShownPage::ShownPage(const TARN::Gallery::Page &page)
    : m_window(std::make_unique<QWidget>())
{
    auto *layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(QMargins());
    layout->addWidget(page.create());
    m_window->setFixedSize(m_window->sizeHint().expandedTo(roomForAPage));
    // It is painted once, for its picture.
    m_window->setUpdatesEnabled(false);
    m_window->show();
    m_window->activateWindow();
    m_window->setFocus();
    TARN::Gallery::settle(*m_window);
    m_window->setUpdatesEnabled(true);
}

ShownPage::~ShownPage() = default;

QImage ShownPage::picture() const
{
    return textlessPicture(*m_window);
}

void applyShippedTheme(const QString &name, bool isComplete)
{
    QApplication::setCursorFlashTime(0);
    qApp->setProperty("appCompleteTheming", isComplete);
    TARN::BaseTheme(QStringLiteral(MOX_THEMES "/") + name).customize(qApp);
}
