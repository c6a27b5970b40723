#include "pages/Arrangement.h"
#include "pages/IconModel.h"
#include "pages/Pages.h"
#include "samples/Literals.h"

#include <resources/ThemeResources.h>

#include <QtCore/QEvent>
#include <QtCore/QSortFilterProxyModel>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QVBoxLayout>

namespace TARN::Gallery {

namespace {

constexpr int Sizes[] = {16, 24, 32, 48, 64};
constexpr int NameWidth = 112;
constexpr int NameLines = 3;

struct Tint
{
    const char *title;
    QBrush (*brush)();
};

constexpr Tint Tints[] = {
    {"Foreground", [] { return QGuiApplication::palette().brush(QPalette::WindowText); }},
    {"Main colour", [] { return QBrush(ThemeResources::getColor("MainColor"_s)); }},
    {"Disabled", [] { return ThemeResources::getBrush("ForegroundBrushDisabled"_s); }},
    {"As drawn", [] { return QBrush(); }}};

QLabel *buddyLabel(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

/// All icons, to be searched through; a click copies an icon's name.
class IconBrowser : public QWidget
{
public:
    IconBrowser();

protected:
    void changeEvent(QEvent *event) override;

private:
    QWidget *createChoices();
    void setUpView();
    void applySize();
    void applyTint();
    void applySearch(const QString &text);
    void copyName(const QModelIndex &index);
    void tellCount();

    IconModel m_icons;
    QSortFilterProxyModel m_matches;
    QLineEdit *m_search = new QLineEdit;
    QComboBox *m_size = new QComboBox;
    QComboBox *m_tint = new QComboBox;
    QListView *m_view = new QListView;
    QLabel *m_message = new QLabel;
};

IconBrowser::IconBrowser()
{
    m_matches.setSourceModel(&m_icons);
    m_matches.setFilterRole(IconModel::NameRole);
    setUpView();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(createChoices());
    layout->addWidget(m_view, 1);
    layout->addWidget(m_message);
    applySize();
    applyTint();
    tellCount();
}

QWidget *IconBrowser::createChoices()
{
    m_search->setPlaceholderText("Search by words of the name"_s);
    m_search->setClearButtonEnabled(true);
    for (const int size : Sizes) {
        m_size->addItem("%1 × %1"_s.arg(size), size);
    }
    m_size->setCurrentIndex(m_size->findData(32));
    for (const Tint &tint : Tints) {
        m_tint->addItem(QString::fromUtf8(tint.title));
    }
    connect(m_search, &QLineEdit::textChanged, this, &IconBrowser::applySearch);
    connect(m_size, qOverload<int>(&QComboBox::activated), this, &IconBrowser::applySize);
    connect(m_tint, qOverload<int>(&QComboBox::activated), this, &IconBrowser::applyTint);

    auto *choices = new QWidget;
    auto *layout = new QHBoxLayout(choices);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search, 1);
    layout->addWidget(buddyLabel("&Size:"_s, m_size));
    layout->addWidget(m_size);
    layout->addWidget(buddyLabel("&Tint:"_s, m_tint));
    layout->addWidget(m_tint);
    return choices;
}

void IconBrowser::setUpView()
{
    m_view->setModel(&m_matches);
    m_view->setViewMode(QListView::IconMode);
    m_view->setMovement(QListView::Static);
    m_view->setResizeMode(QListView::Adjust);
    m_view->setUniformItemSizes(true);
    m_view->setWordWrap(true);
    m_view->setAccessibleName("Icons"_s);
    connect(m_view, &QListView::clicked, this, &IconBrowser::copyName);
    connect(m_view, &QListView::activated, this, &IconBrowser::copyName);
}

void IconBrowser::applySize()
{
    const int size = m_size->currentData().toInt();
    m_view->setIconSize(QSize(size, size));
    const QSize cell(NameWidth, size + NameLines * fontMetrics().height() + 12);
    m_icons.setCellSize(cell);
    m_view->setGridSize(cell);
}

void IconBrowser::applyTint()
{
    m_icons.setTint(Tints[m_tint->currentIndex()].brush());
}

void IconBrowser::applySearch(const QString &text)
{
    // Every word has to be found somewhere in the name, whatever their order.
    QString pattern = "^"_s;
    for (const QString &word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        pattern += "(?=.*"_s + QRegularExpression::escape(word) + ")"_s;
    }
    m_matches.setFilterRegularExpression(
        QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption));
    tellCount();
}

void IconBrowser::copyName(const QModelIndex &index)
{
    const QString name = index.data(IconModel::NameRole).toString();
    QGuiApplication::clipboard()->setText(name);
    m_message->setText("Copied “%1”"_s.arg(name));
}

void IconBrowser::tellCount()
{
    m_message->setText("%1 of %2 icons; a click copies the name"_s.arg(m_matches.rowCount())
                           .arg(m_icons.rowCount()));
}

void IconBrowser::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        m_icons.reload();
        applyTint();
    }
}

} // namespace

QWidget *createIconsPage()
{
    return new IconBrowser;
}

} // namespace TARN::Gallery
