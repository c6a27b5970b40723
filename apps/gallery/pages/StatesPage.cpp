#include "pages/StatesPage.h"

#include "pages/Arrangement.h"
#include "samples/Literals.h"
#include "states/ElementSubject.h"

#include <style/BaseStyle.h>

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

#include <memory>

namespace TARN::Gallery {

namespace {

constexpr int RowGap = 4;
constexpr int ColumnGap = 12;

enum Column { TitleColumn, NameColumn, FirstStateColumn };

/// Shows a sample in one state, painted by \a style, as if there were the mouse or the focus.
class StateCell : public QWidget
{
public:
    StateCell(const ElementSample &sample, ElementState state, const std::unique_ptr<QStyle> &style)
        : m_subject(sample, state)
        , m_style(style)
    {
        setFixedSize(sample.size);
        setObjectName(QString::fromUtf8(sample.title) + ": "_s + stateName(state));
        setToolTip(elementName(sample.id) + u'\n' + objectName());
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        m_subject.paint(*m_style, painter, layoutDirection(), isEnabled());
    }

private:
    ElementSubject m_subject;
    const std::unique_ptr<QStyle> &m_style;
};

/// Returns what \a pick picks of the states of \a samples, each once, in order of appearance.
ElementStates partsOf(const QVector<ElementSample> &samples, ElementState (*pick)(ElementState))
{
    ElementStates parts;
    for (const ElementSample &sample : samples) {
        for (const ElementState state : sample.states) {
            if (!parts.contains(pick(state))) {
                parts.append(pick(state));
            }
        }
    }
    return parts;
}

QString rowTitle(const ElementSample &sample, ElementState value)
{
    const QString title = QString::fromUtf8(sample.title);
    return value ? QString(title + ", "_s + stateName(value).toLower()) : title;
}

class StatesPage : public QWidget
{
public:
    explicit StatesPage(const ElementFamily &family);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addHeadings();
    void addRow(const ElementSample &sample, ElementState value);

    // The application's own has its stylesheet above it, which takes the parts of some widgets for
    // its own when they are painted without the widget.
    std::unique_ptr<QStyle> m_style;
    QGridLayout *m_grid;
    ElementStates m_interactions; // one for each column
};

StatesPage::StatesPage(const ElementFamily &family)
    : m_style(std::make_unique<BaseStyle>())
    , m_grid(new QGridLayout(this))
    , m_interactions(partsOf(family.samples, interactionOf))
{
    // In the order of the conditions, whichever sample has one first.
    std::sort(m_interactions.begin(), m_interactions.end());
    m_grid->setHorizontalSpacing(ColumnGap);
    m_grid->setVerticalSpacing(RowGap);
    addHeadings();
    for (const ElementSample &sample : family.samples) {
        for (const ElementState value : partsOf({sample}, valueOf)) {
            addRow(sample, value);
        }
    }
    m_grid->setRowStretch(m_grid->rowCount(), 1);
    m_grid->setColumnStretch(FirstStateColumn + m_interactions.size(), 1);
}

// The style of another theme has other brushes.
void StatesPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        m_style = std::make_unique<BaseStyle>();
        update();
    }
}

void StatesPage::addHeadings()
{
    for (int i = 0; i < m_interactions.size(); ++i) {
        m_grid->addWidget(sectionTitle(stateName(m_interactions.at(i))), 0, FirstStateColumn + i);
    }
}

void StatesPage::addRow(const ElementSample &sample, ElementState value)
{
    const int row = m_grid->rowCount();
    m_grid->addWidget(new QLabel(rowTitle(sample, value)), row, TitleColumn);
    auto *name = new QLabel(elementName(sample.id));
    name->setForegroundRole(QPalette::PlaceholderText);
    m_grid->addWidget(name, row, NameColumn);
    for (const ElementState state : sample.states) {
        if (valueOf(state) == value) {
            const int column = FirstStateColumn + m_interactions.indexOf(interactionOf(state));
            m_grid->addWidget(new StateCell(sample, state, m_style), row, column,
                              Qt::AlignLeading | Qt::AlignVCenter);
        }
    }
}

} // namespace

QWidget *createStatesPage(const ElementFamily &family)
{
    return new StatesPage(family);
}

} // namespace TARN::Gallery
