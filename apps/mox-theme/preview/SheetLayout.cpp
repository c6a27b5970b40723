#include "preview/SheetLayout.h"

#include <algorithm>
#include <cmath>

namespace TARN::ThemeTool {

namespace {

using Columns = QVector<QVector<int>>; // the indexes of each column's cells

// Fills one column after the other up to the height.
Columns filledColumns(const QVector<QSize> &cells, int gap, int height)
{
    Columns columns;
    int bottom = 0;
    for (int i = 0; i < cells.size(); ++i) {
        if (columns.isEmpty() || bottom + gap + cells.at(i).height() > height) {
            columns.append(QVector<int>{i});
            bottom = cells.at(i).height();
        } else {
            columns.last().append(i);
            bottom += gap + cells.at(i).height();
        }
    }
    return columns;
}

// The lowest columns of which no more than the count are needed.
Columns evenColumns(const QVector<QSize> &cells, int gap, int count)
{
    int low = 0;
    int high = 0;
    for (const QSize &cell : cells) {
        low = std::max(low, cell.height());
        high += cell.height() + gap;
    }
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (filledColumns(cells, gap, middle).size() <= count) {
            high = middle;
        } else {
            low = middle + 1;
        }
    }
    return filledColumns(cells, gap, low);
}

QVector<QRect> placed(const QVector<QSize> &cells, const Columns &columns, int gap)
{
    QVector<QRect> places(cells.size());
    int left = 0;
    for (const QVector<int> &column : columns) {
        int width = 0;
        for (const int index : column) {
            width = std::max(width, cells.at(index).width());
        }
        int top = 0;
        for (const int index : column) {
            places[index] = QRect(left, top, width, cells.at(index).height());
            top += cells.at(index).height() + gap;
        }
        left += width + gap;
    }
    return places;
}

double aspectOf(const QVector<QRect> &places)
{
    QRect whole;
    for (const QRect &place : places) {
        whole |= place;
    }
    return double(whole.width()) / whole.height();
}

} // namespace

QVector<QRect> arrangeInColumns(const QVector<QSize> &cells, int gap, double aspect)
{
    QVector<QRect> best;
    double bestDeviation = 0;
    for (int count = 1; count <= cells.size(); ++count) {
        const QVector<QRect> places = placed(cells, evenColumns(cells, gap, count), gap);
        const double deviation = std::abs(std::log(aspectOf(places) / aspect));
        if (best.isEmpty() || deviation < bestDeviation) {
            best = places;
            bestDeviation = deviation;
        }
    }
    return best;
}

} // namespace TARN::ThemeTool
