#include "style/asking/DeclaredProperties.h"

#include <QtWidgets/QtWidgets>

#include <array>

namespace TARN {

namespace {

/// The public widgets, and what they and the application object are derived from.
const QMetaObject *const widgetClasses[] = {
    &QObject::staticMetaObject,
    &QCoreApplication::staticMetaObject,
    &QGuiApplication::staticMetaObject,
    &QApplication::staticMetaObject,
    &QWidget::staticMetaObject,
    &QFrame::staticMetaObject,
    &QAbstractButton::staticMetaObject,
    &QCheckBox::staticMetaObject,
    &QPushButton::staticMetaObject,
    &QCommandLinkButton::staticMetaObject,
    &QRadioButton::staticMetaObject,
    &QToolButton::staticMetaObject,
    &QAbstractSlider::staticMetaObject,
    &QDial::staticMetaObject,
    &QScrollBar::staticMetaObject,
    &QSlider::staticMetaObject,
    &QAbstractSpinBox::staticMetaObject,
    &QDateTimeEdit::staticMetaObject,
    &QDateEdit::staticMetaObject,
    &QTimeEdit::staticMetaObject,
    &QDoubleSpinBox::staticMetaObject,
    &QSpinBox::staticMetaObject,
    &QAbstractScrollArea::staticMetaObject,
    &QAbstractItemView::staticMetaObject,
    &QColumnView::staticMetaObject,
    &QHeaderView::staticMetaObject,
    &QListView::staticMetaObject,
    &QListWidget::staticMetaObject,
    &QUndoView::staticMetaObject,
    &QTableView::staticMetaObject,
    &QTableWidget::staticMetaObject,
    &QTreeView::staticMetaObject,
    &QTreeWidget::staticMetaObject,
    &QGraphicsView::staticMetaObject,
    &QMdiArea::staticMetaObject,
    &QPlainTextEdit::staticMetaObject,
    &QScrollArea::staticMetaObject,
    &QTextEdit::staticMetaObject,
    &QTextBrowser::staticMetaObject,
    &QComboBox::staticMetaObject,
    &QFontComboBox::staticMetaObject,
    &QDialog::staticMetaObject,
    &QColorDialog::staticMetaObject,
    &QErrorMessage::staticMetaObject,
    &QFileDialog::staticMetaObject,
    &QFontDialog::staticMetaObject,
    &QInputDialog::staticMetaObject,
    &QMessageBox::staticMetaObject,
    &QProgressDialog::staticMetaObject,
    &QWizard::staticMetaObject,
    &QCalendarWidget::staticMetaObject,
    &QDialogButtonBox::staticMetaObject,
    &QDockWidget::staticMetaObject,
    &QFocusFrame::staticMetaObject,
    &QGroupBox::staticMetaObject,
    &QKeySequenceEdit::staticMetaObject,
    &QLCDNumber::staticMetaObject,
    &QLabel::staticMetaObject,
    &QLineEdit::staticMetaObject,
    &QMainWindow::staticMetaObject,
    &QMdiSubWindow::staticMetaObject,
    &QMenu::staticMetaObject,
    &QMenuBar::staticMetaObject,
    &QProgressBar::staticMetaObject,
    &QRubberBand::staticMetaObject,
    &QSizeGrip::staticMetaObject,
    &QSplashScreen::staticMetaObject,
    &QSplitter::staticMetaObject,
    &QSplitterHandle::staticMetaObject,
    &QStackedWidget::staticMetaObject,
    &QStatusBar::staticMetaObject,
    &QTabBar::staticMetaObject,
    &QTabWidget::staticMetaObject,
    &QToolBar::staticMetaObject,
    &QToolBox::staticMetaObject,
    &QWizardPage::staticMetaObject,
};

/// A class of the toolkit and what is known about it. It stays loaded as long as this library does,
/// whereas the address of a plugin's class may be that of another plugin's class next.
class ToolkitClass
{
public:
    void setMetaObject(const QMetaObject &metaObject)
    {
        m_metaObject = &metaObject;
        m_propertyCount = metaObject.propertyCount();
        m_indices.fill(unknown);
    }

    /// Tells whether it declares, or inherits, the same as a class that is derived from it.
    bool declaresAllOf(const QMetaObject &derived) const
    {
        return &derived == m_metaObject || derived.propertyCount() == m_propertyCount;
    }

    /// Returns the index of \a property in the class; -1 when there is none.
    int indexOf(Property property)
    {
        qint16 &index = m_indices[static_cast<std::size_t>(property)];
        if (index == unknown) {
            index = qint16(m_metaObject->indexOfProperty(nameOf(property)));
        }
        return index;
    }

private:
    static constexpr qint16 unknown = -2;

    const QMetaObject *m_metaObject = nullptr;
    int m_propertyCount = 0;
    std::array<qint16, propertyCount> m_indices{};
};

/// The toolkit's classes by their addresses.
class ToolkitClasses
{
public:
    ToolkitClasses()
    {
        for (std::size_t i = 0; i < m_classes.size(); ++i) {
            m_classes[i].setMetaObject(*widgetClasses[i]);
            slotOf(widgetClasses[i]) = {widgetClasses[i], &m_classes[i]};
        }
    }

    /// Returns the class that \a metaObject describes, or the nearest one that it is derived from;
    /// null when there is none.
    ToolkitClass *nearest(const QMetaObject *metaObject)
    {
        ToolkitClass *found = nullptr;
        for (; metaObject && !found; metaObject = metaObject->superClass()) {
            found = slotOf(metaObject).toolkitClass;
        }
        return found;
    }

private:
    struct Slot
    {
        const QMetaObject *metaObject = nullptr;
        ToolkitClass *toolkitClass = nullptr;
    };

    /// Returns the slot of a class, or the free one that it would take.
    Slot &slotOf(const QMetaObject *metaObject)
    {
        // Such things are aligned, so their lowest bits tell nothing.
        std::size_t index = reinterpret_cast<std::size_t>(metaObject) >> 3U;
        while (m_slots[index % slotCount].metaObject &&
               m_slots[index % slotCount].metaObject != metaObject) {
            ++index;
        }
        return m_slots[index % slotCount];
    }

    // Most stay free, so that most classes have the one where they are looked for.
    static constexpr std::size_t slotCount = 512;

    std::array<ToolkitClass, std::size(widgetClasses)> m_classes;
    std::array<Slot, slotCount> m_slots;
};

} // namespace

int declaredIndex(const QMetaObject &metaObject, Property property)
{
    static ToolkitClasses classes;
    ToolkitClass *base = classes.nearest(&metaObject);
    return base && base->declaresAllOf(metaObject) ? base->indexOf(property)
                                                   : metaObject.indexOfProperty(nameOf(property));
}

} // namespace TARN
