#include "pages/SamplePage.h"

#include "pages/Arrangement.h"
#include "samples/Literals.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace TARN::Gallery {

namespace {

enum Column { EnabledColumn, DisabledColumn, ColumnCount };

constexpr int ColumnSpacing = 32;
constexpr int SampleSpacing = 14; // above each sample's title
constexpr double HeadingScale = 1.2;

QWidget *columnHeading(const QString &text)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * HeadingScale);
    label->setFont(font);
    auto *line = new QFrame;
    // A plain line stays one at every scale; at some, a shaded one loses its dark half.
    line->setFrameStyle(QFrame::HLine | QFrame::Plain);
    line->setForegroundRole(QPalette::Midlight);
    return column({row({label}), line});
}

} // namespace

SamplePage::SamplePage()
    : m_grid(new QGridLayout(this))
{
    m_grid->setHorizontalSpacing(ColumnSpacing);
    m_grid->addWidget(columnHeading("Enabled"_s), 0, EnabledColumn);
    m_grid->addWidget(columnHeading("Disabled"_s), 0, DisabledColumn);
    for (int column = 0; column < ColumnCount; ++column) {
        m_grid->setColumnStretch(column, 1);
    }
}

void SamplePage::addSample(const QString &title, const std::function<QWidget *()> &create,
                           int stretch)
{
    const int row = m_grid->rowCount();
    if (!title.isEmpty()) {
        QLabel *label = sectionTitle(title);
        label->setContentsMargins(0, SampleSpacing, 0, 0);
        m_grid->addWidget(label, row, EnabledColumn, 1, ColumnCount, Qt::AlignLeading);
    }
    for (int column = 0; column < ColumnCount; ++column) {
        QWidget *sample = create();
        sample->setEnabled(column == EnabledColumn);
        m_grid->addWidget(sample, row + 1, column);
    }
    m_grid->setRowStretch(row + 1, stretch);
    m_stretches = m_stretches || stretch > 0;
}

void SamplePage::finish()
{
    if (!m_stretches) {
        m_grid->setRowStretch(m_grid->rowCount(), 1);
    }
}

} // namespace TARN::Gallery
