#include "samples/SampleModels.h"

#include "samples/Literals.h"
#include "samples/SamplePictures.h"
#include "samples/Symbols.h"

#include <QtGui/QStandardItemModel>

namespace TARN::Gallery {

namespace {

struct Particle
{
    const char *label;
    double area;
    double circularity;
    const char *phase;
};

constexpr Particle Particles[] = {
    {"P-001", 412.6, 0.84, "Austenite"}, {"P-002", 96.1, 0.89, "Carbide"},
    {"P-003", 1284.0, 0.71, "Ferrite"},  {"P-004", 305.7, 0.88, "Austenite"},
    {"P-005", 58.3, 0.80, "Carbide"},    {"P-006", 742.9, 0.66, "Ferrite"},
    {"P-007", 219.4, 0.89, "Austenite"}, {"P-008", 17.0, 0.94, "Inclusion"},
};
constexpr int DisabledParticle = 4;

constexpr QSize ThumbnailSize(96, 72);

void disable(QStandardItem *item)
{
    item->setFlags(item->flags() & ~Qt::ItemFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable));
}

QStandardItem *numberItem(double value, int decimals)
{
    auto *item = new QStandardItem;
    item->setData(QString::number(value, 'f', decimals).toDouble(), Qt::DisplayRole);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

QList<QStandardItem *> particleRow(const Particle &particle)
{
    auto *label = new QStandardItem(QString::fromUtf8(particle.label));
    label->setCheckable(true);
    label->setCheckState(particle.area > 100 ? Qt::Checked : Qt::Unchecked);
    return {label, numberItem(particle.area, 1), numberItem(particle.circularity, 2),
            new QStandardItem(QString::fromUtf8(particle.phase))};
}

QStandardItem *layerItem(const QString &name, Qt::CheckState state)
{
    auto *item = new QStandardItem(symbol("view.layer"_s), name);
    item->setCheckable(true);
    item->setCheckState(state);
    return item;
}

// Rows are as wide as the top level's, lest their stripes end at the first column.
void appendWideRows(QStandardItem *parent, const QList<QStandardItem *> &items)
{
    for (auto *item : items) {
        parent->appendRow({item, new QStandardItem});
    }
}

QStandardItem *imageItem(const QString &name, const QList<QStandardItem *> &layers)
{
    auto *item = new QStandardItem(symbol("view.image"_s), name);
    appendWideRows(item, layers);
    return item;
}

QStandardItem *sampleItem(const QString &name, const QList<QStandardItem *> &images)
{
    auto *item = new QStandardItem(symbol("file.folder"_s), name);
    appendWideRows(item, images);
    return item;
}

void addProjectRow(QStandardItemModel *model, QStandardItem *item, const QString &state)
{
    model->appendRow({item, new QStandardItem(state)});
}

} // namespace

QStandardItemModel *particleModel(QObject *parent)
{
    auto *model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels({"Particle"_s, "Area [µm²]"_s, "Circularity"_s, "Phase"_s});
    for (const Particle &particle : Particles) {
        model->appendRow(particleRow(particle));
    }
    for (int column = 0; column < model->columnCount(); ++column) {
        disable(model->item(DisabledParticle, column));
    }
    return model;
}

QStandardItemModel *projectModel(QObject *parent)
{
    auto *model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels({"Project"_s, "State"_s});
    addProjectRow(
        model,
        sampleItem("Weld seam 12"_s,
                   {imageItem("Overview.tif"_s, {layerItem("Scale bar"_s, Qt::Checked)}),
                    imageItem("Heat zone.tif"_s, {layerItem("Grain boundaries"_s, Qt::Checked),
                                                  layerItem("Phases"_s, Qt::PartiallyChecked),
                                                  layerItem("Annotations"_s, Qt::Unchecked)})}),
        "Measured"_s);
    addProjectRow(model,
                  sampleItem("Weld seam 13"_s,
                             {imageItem("Overview.tif"_s, {}), imageItem("Root.tif"_s, {})}),
                  "In progress"_s);
    QStandardItem *archived = sampleItem("Weld seam 11"_s, {});
    addProjectRow(model, archived, "Archived"_s);
    for (int column = 0; column < model->columnCount(); ++column) {
        disable(model->item(archived->row(), column));
    }
    addProjectRow(model, new QStandardItem(symbol("file.text"_s), "Report.pdf"_s), "Draft"_s);
    return model;
}

QStandardItemModel *imageModel(QObject *parent)
{
    const QStringList names = {"Overview"_s,   "Heat zone"_s, "Root"_s,
                               "Base metal"_s, "Etched"_s,    "Rejected"_s};
    auto *model = new QStandardItemModel(parent);
    for (const QString &name : names) {
        const auto seed = static_cast<quint32>(model->rowCount() + 1);
        model->appendRow(new QStandardItem(QIcon(micrograph(ThumbnailSize, seed)), name));
    }
    disable(model->item(model->rowCount() - 1));
    return model;
}

} // namespace TARN::Gallery
