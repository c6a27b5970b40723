#pragma once

#include <QtWidgets/QWidget>

class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace TARN::Gallery {

/// The list of all pages by family, with a search above it.
class PageList : public QWidget
{
    Q_OBJECT

public:
    explicit PageList(QWidget *parent = nullptr);

    /// Selects the page at \a index of the page table, and makes it visible.
    void setCurrentPage(int index);
    /// Selects the page that is listed \a steps after the current one; before it when negative.
    void movePage(int steps);
    /// Puts the keyboard into the search.
    void focusSearch();

Q_SIGNALS:
    void currentPageChanged(int index);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addPages();
    void addHeading(const QString &family);
    void colorHeadings();
    void filter(const QString &text);
    void reportCurrent(const QListWidgetItem *item);

    QLineEdit *m_search;
    QListWidget *m_list;
};

} // namespace TARN::Gallery
