#include "preview/FindingsPanel.h"

#include "preview/FindingDelegate.h"
#include "text/Literals.h"

#include <QtCore/QDir>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

constexpr int BarIconSize = 24;

QString placeOf(const Finding &finding, const QString &directory)
{
    const QString path =
        QDir(directory).relativeFilePath(QFileInfo(finding.file).absoluteFilePath());
    return finding.line > 0 ? path + ":"_s + QString::number(finding.line) : path;
}

QString severityName(Severity severity)
{
    return severity == Severity::Error ? "error"_s : "warning"_s;
}

QString counted(const QVector<Finding> &findings, Severity severity)
{
    const auto count =
        std::count_if(findings.cbegin(), findings.cend(),
                      [severity](const Finding &finding) { return finding.severity == severity; });
    if (count == 0) {
        return {};
    }
    return QString::number(count) + " "_s + severityName(severity) + (count == 1 ? ""_s : "s"_s);
}

QString summaryOf(const QVector<Finding> &findings)
{
    QStringList parts{counted(findings, Severity::Error), counted(findings, Severity::Warning)};
    parts.removeAll(QString());
    return parts.isEmpty() ? "No findings"_s : parts.join(", "_s);
}

} // namespace

FindingsPanel::FindingsPanel(QWidget *parent)
    : QWidget(parent)
    , m_bar(new QFrame)
    , m_barIcon(new QLabel)
    , m_barText(new QLabel)
    , m_summary(new QLabel)
    , m_list(new QListView)
    , m_model(new QStandardItemModel(this))
{
    createBar();
    m_list->setModel(m_model);
    m_list->setItemDelegate(new FindingDelegate(m_list));
    m_list->setAccessibleName("Findings"_s);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    // The lines break anew in another width; and hundreds of findings must not hold up the theme.
    m_list->setResizeMode(QListView::Adjust);
    m_list->setLayoutMode(QListView::Batched);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_bar);
    layout->addWidget(m_summary);
    layout->addWidget(m_list, 1);
    // Keeps the rest at the top when there is no list.
    layout->addStretch();
    setFindings({}, QString());
}

void FindingsPanel::createBar()
{
    m_bar->setFrameShape(QFrame::StyledPanel);
    m_bar->hide();
    m_barText->setWordWrap(true);
    m_barText->setTextFormat(Qt::PlainText);
    m_barText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *heading = new QLabel("Still showing the last good theme"_s);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);

    auto *layout = new QGridLayout(m_bar);
    layout->addWidget(m_barIcon, 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(heading, 0, 1);
    layout->addWidget(m_barText, 1, 1);
    layout->setColumnStretch(1, 1);
}

void FindingsPanel::setFindings(const QVector<Finding> &findings, const QString &directory)
{
    const QIcon error = style()->standardIcon(QStyle::SP_MessageBoxCritical, nullptr, this);
    const QIcon warning = style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this);
    m_model->clear();
    for (const Finding &finding : findings) {
        const QString place = placeOf(finding, directory);
        auto *item = new QStandardItem(finding.text);
        item->setIcon(finding.severity == Severity::Error ? error : warning);
        item->setData(finding.rule, RuleRole);
        item->setData(place, PlaceRole);
        item->setData(finding.suggestion, SuggestionRole);
        item->setToolTip(place);
        item->setAccessibleText(severityName(finding.severity) + ": "_s + finding.rule + ", "_s +
                                place + ": "_s + finding.text);
        m_model->appendRow(item);
    }
    m_summary->setText(summaryOf(findings));
    m_list->setVisible(!findings.isEmpty());
}

void FindingsPanel::setProblem(const QString &problem)
{
    m_barIcon->setPixmap(style()
                             ->standardIcon(QStyle::SP_MessageBoxCritical, nullptr, this)
                             .pixmap(BarIconSize, BarIconSize));
    m_barText->setText(problem);
    m_bar->setVisible(!problem.isEmpty());
}

} // namespace TARN::ThemeTool
