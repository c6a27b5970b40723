#pragma once

#include "check/model/Finding.h"

#include <QtWidgets/QWidget>

class QFrame;
class QLabel;
class QListView;
class QStandardItemModel;

namespace TARN::ThemeTool {

/// Lists what is wrong with a theme, and above that, while the theme as it was saved cannot be
/// shown, says why.
class FindingsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FindingsPanel(QWidget *parent = nullptr);

    /// Lists \a findings of the theme in \a directory, in their order, in place of those before.
    void setFindings(const QVector<Finding> &findings, const QString &directory);

    /// Shows \a problem, one line that says why the theme on the screen is not the one that was
    /// saved last, in a bar; an empty one hides the bar.
    void setProblem(const QString &problem);

private:
    void createBar();

    QFrame *m_bar;
    QLabel *m_barIcon;
    QLabel *m_barText;
    QLabel *m_summary;
    QListView *m_list;
    QStandardItemModel *m_model;
};

} // namespace TARN::ThemeTool
