#include "PageList.h"

#include "pages/PageTable.h"
#include "samples/Literals.h"
#include "samples/Symbols.h"

#include <QtCore/QEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

namespace TARN::Gallery {

namespace {

constexpr int IndexRole = Qt::UserRole;
constexpr int NoPage = -1;

int pageIndex(const QListWidgetItem *item)
{
    return item ? item->data(IndexRole).toInt() : NoPage;
}

bool contains(const QListWidgetItem *item, const QString &text)
{
    return item && item->text().contains(text, Qt::CaseInsensitive);
}

void reveal(QListWidgetItem *item)
{
    if (item) {
        item->setHidden(false);
    }
}

} // namespace

PageList::PageList(QWidget *parent)
    : QWidget(parent)
    , m_search(new QLineEdit)
    , m_list(new QListWidget)
{
    m_search->setPlaceholderText("Find a page"_s);
    m_search->setClearButtonEnabled(true);
    m_search->addAction(symbol("action.search"_s), QLineEdit::LeadingPosition);
    m_list->setAccessibleName("Pages"_s);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    addPages();
    colorHeadings();
    setFocusProxy(m_list);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_list);

    connect(m_search, &QLineEdit::textChanged, this, &PageList::filter);
    connect(m_search, &QLineEdit::returnPressed, m_list, qOverload<>(&QWidget::setFocus));
    connect(m_list, &QListWidget::currentItemChanged, this, &PageList::reportCurrent);
}

void PageList::addPages()
{
    const QVector<Page> &table = pages();
    for (int i = 0; i < table.size(); ++i) {
        if (i == 0 || table.at(i).family != table.at(i - 1).family) {
            addHeading(table.at(i).family);
        }
        auto *item = new QListWidgetItem(table.at(i).title, m_list);
        item->setData(IndexRole, i);
    }
}

void PageList::addHeading(const QString &family)
{
    auto *item = new QListWidgetItem(family, m_list);
    item->setData(IndexRole, NoPage);
    QFont font = m_list->font();
    font.setBold(true);
    item->setFont(font);
    // The keyboard passes over what is disabled.
    item->setFlags(Qt::NoItemFlags);
}

// They are disabled for the keyboard's sake, but are to be read all the same.
void PageList::colorHeadings()
{
    for (int i = 0; i < m_list->count(); ++i) {
        if (pageIndex(m_list->item(i)) == NoPage) {
            m_list->item(i)->setForeground(palette().color(QPalette::Active, QPalette::WindowText));
        }
    }
}

void PageList::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        colorHeadings();
    }
}

void PageList::setCurrentPage(int index)
{
    for (int i = 0; i < m_list->count(); ++i) {
        if (pageIndex(m_list->item(i)) == index) {
            m_list->setCurrentRow(i);
            m_list->scrollToItem(m_list->item(i));
        }
    }
}

void PageList::movePage(int steps)
{
    const int index = pageIndex(m_list->currentItem()) + steps;
    setCurrentPage(qBound(0, index, pages().size() - 1));
}

void PageList::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

// A heading stays as long as a page below it does.
void PageList::filter(const QString &text)
{
    QListWidgetItem *heading = nullptr;
    QListWidgetItem *firstMatch = nullptr;
    for (int i = 0; i < m_list->count(); ++i) {
        QListWidgetItem *item = m_list->item(i);
        if (pageIndex(item) == NoPage) {
            heading = item;
            heading->setHidden(true);
            continue;
        }
        const bool matches = contains(item, text) || contains(heading, text);
        item->setHidden(!matches);
        if (matches) {
            firstMatch = firstMatch ? firstMatch : item;
            reveal(heading);
        }
    }
    const QListWidgetItem *current = m_list->currentItem();
    if (firstMatch && (!current || current->isHidden())) {
        m_list->setCurrentItem(firstMatch);
    }
}

void PageList::reportCurrent(const QListWidgetItem *item)
{
    const int index = pageIndex(item);
    if (index != NoPage) {
        Q_EMIT currentPageChanged(index);
    }
}

} // namespace TARN::Gallery
