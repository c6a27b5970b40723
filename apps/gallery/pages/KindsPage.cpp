#include "pages/Arrangement.h"
#include "pages/KindSample.h"
#include "pages/Pages.h"
#include "samples/Literals.h"

#include <catalogue/Catalogue.h>
#include <catalogue/Words.h>

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace TARN::Gallery {

namespace {

constexpr int Gap = 3;       // between samples
constexpr int GroupGap = 18; // between the states of one check word and those of the next
constexpr int FamilyGap = 4; // above the headings of all families but the first

constexpr int FirstSampleColumn = 1;
constexpr int ColumnsPerGroup = 5; // the fourth column of samples is followed by a gap

/// Something that comes in kinds; the words before and after the kind in the names of its brushes.
struct Family
{
    const char *title;
    QString words;
    Qt::Alignment textAlignment;
};

const QVector<Family> &families()
{
    const QString button = Words::button;
    static const QVector<Family> all{
        {"Buttons", button, Qt::AlignCenter},
        {"Toggle buttons", Words::toggle + button, Qt::AlignCenter},
        {"Combo boxes", QString(Words::input), Qt::AlignLeading | Qt::AlignVCenter}};
    return all;
}

/// A column of samples within its group: the mouse's doing, or that the widget is disabled.
struct State
{
    const char *title;
    QLatin1String interaction;
    QString twin; ///< what ends the names of the brushes
};

const QVector<State> &states()
{
    static const QVector<State> all{{"At rest", QLatin1String(""), QString()},
                                    {"Hover", Words::hover, QString()},
                                    {"Pressed", Words::pressed, QString()},
                                    {"Disabled", QLatin1String(""), "Disabled"_s}};
    return all;
}

QLabel *heading(const QString &text)
{
    auto *label = new QLabel(text);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    return label;
}

/// A table of samples: kinds below each other, states side by side.
class KindsPage : public QWidget
{
public:
    KindsPage();

private:
    void addGroupTitles();
    void addFamily(const Family &family);
    void addKind(const Family &family, const QString &kind);

    QGridLayout *m_grid;
};

int columnOf(std::size_t group, int state)
{
    return FirstSampleColumn + int(group) * ColumnsPerGroup + state;
}

KindsPage::KindsPage()
    : m_grid(new QGridLayout(this))
{
    m_grid->setSpacing(Gap);
    for (std::size_t group = 0; group < Words::checkStates.size(); ++group) {
        for (int state = 0; state < states().size(); ++state) {
            m_grid->setColumnStretch(columnOf(group, state), 1);
        }
        // Before each group; the spacing on both sides counts too.
        m_grid->setColumnMinimumWidth(columnOf(group, 0) - 1, GroupGap - 2 * Gap);
    }
    addGroupTitles();
    for (const Family &family : families()) {
        addFamily(family);
    }
}

void KindsPage::addGroupTitles()
{
    for (std::size_t group = 0; group < Words::checkStates.size(); ++group) {
        QLabel *title = sectionTitle(Words::checkStates.at(group));
        title->setAlignment(Qt::AlignCenter);
        m_grid->addWidget(title, 0, columnOf(group, 0), 1, states().size());
    }
}

void KindsPage::addFamily(const Family &family)
{
    const int row = m_grid->rowCount();
    QLabel *title = sectionTitle(QString::fromUtf8(family.title));
    title->setContentsMargins(0, row > 1 ? FamilyGap : 0, 0, 0);
    m_grid->addWidget(title, row, 0);
    for (std::size_t group = 0; group < Words::checkStates.size(); ++group) {
        for (int state = 0; state < states().size(); ++state) {
            m_grid->addWidget(heading(QString::fromUtf8(states().at(state).title)), row,
                              columnOf(group, state));
        }
    }
    for (const QString &kind : Catalogue::kinds()) {
        addKind(family, kind);
    }
}

void KindsPage::addKind(const Family &family, const QString &kind)
{
    const int row = m_grid->rowCount();
    m_grid->setRowStretch(row, 1);
    m_grid->addWidget(new QLabel(kind.isEmpty() ? "Plain"_s : kind), row, 0);
    for (std::size_t group = 0; group < Words::checkStates.size(); ++group) {
        for (int column = 0; column < states().size(); ++column) {
            const State &state = states().at(column);
            const QString stem =
                family.words + kind + Words::checkStates.at(group) + state.interaction;
            m_grid->addWidget(new KindSample(stem, state.twin, family.textAlignment), row,
                              columnOf(group, column));
        }
    }
}

} // namespace

QWidget *createKindsPage()
{
    return new KindsPage;
}

} // namespace TARN::Gallery
