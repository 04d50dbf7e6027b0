#include "PhotoListModel.h"

#include "Icons.h"
#include "Photo.h"
#include "PhotoFile.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>

namespace {
constexpr int kThumbnailSide = 384; // in pixels; large enough to stand in on the canvas while a photo loads
constexpr QSize kPreviewSize(84, 60);
constexpr QSize kPreviewBox(100, 60);
constexpr int kRowHeight = 72;
constexpr int kStatusSize = 16;
constexpr int kMargin = 10;

// The preview in a box of always the same size, so that all names begin at one line.
QPixmap framed(const QPixmap &inPreview, double inRatio)
{
    QPixmap box(kPreviewBox * inRatio);
    box.setDevicePixelRatio(inRatio);
    box.fill(Qt::transparent);
    QPainter painter(&box);
    if (inPreview.isNull()) {
        painter.fillRect(
            QRect(QPoint((kPreviewBox.width() - kPreviewSize.width()) / 2, 2), kPreviewSize - QSize(0, 4)),
            VantraStyleTheme::instance().colorPalette().color(VantraPalette::Normal,
                                                              VantraPalette::FrameSunkenBackground));
        return box;
    }
    QRectF rect({}, QSizeF(inPreview.size()).scaled(kPreviewSize, Qt::KeepAspectRatio));
    rect.moveCenter(QRectF({}, kPreviewBox).center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect, inPreview, inPreview.rect());
    return box;
}
} // namespace

PhotoListModel::PhotoListModel(QObject *inParent) : QAbstractListModel(inParent)
{
    mLoaders.setMaxThreadCount(2);
}

PhotoListModel::~PhotoListModel()
{
    mLoaders.clear();
    mLoaders.waitForDone();
}

Photo *PhotoListModel::add(const QString &inPath, const QSize &inSize)
{
    for (Photo *photo : std::as_const(mPhotos)) {
        if (photo->path() == inPath)
            return photo;
    }
    auto *photo = new Photo(inPath, inSize, this);
    const int row = rowCount();
    beginInsertRows({}, row, row);
    mPhotos << photo;
    endInsertRows();
    connect(photo, &Photo::changed, this, [this, photo] {
        const QModelIndex index = indexOf(photo);
        emit dataChanged(index, index);
    });
    loadThumbnail(photo);
    return photo;
}

void PhotoListModel::remove(Photo *inPhoto)
{
    const int row = static_cast<int>(mPhotos.indexOf(inPhoto));
    beginRemoveRows({}, row, row);
    mPhotos.removeAt(row);
    endRemoveRows();
    delete inPhoto;
}

void PhotoListModel::loadThumbnail(Photo *inPhoto)
{
    mLoaders.start([this, path = inPhoto->path(), photo = QPointer<Photo>(inPhoto)] {
        QString reason;
        const QImage image = PhotoFile::loadThumbnail(path, kThumbnailSide, reason);
        // The destructor waits for this, so that the model is there; whether the photo is, its thread tells.
        QMetaObject::invokeMethod(
            this,
            [photo, image] {
                if (photo != nullptr)
                    photo->setThumbnail(image);
            },
            Qt::QueuedConnection);
    });
}

QList<Photo *> PhotoListModel::photosToExport() const
{
    QList<Photo *> photos;
    for (Photo *photo : mPhotos) {
        if (photo->waitsForExport())
            photos << photo;
    }
    return photos;
}

Photo *PhotoListModel::photo(const QModelIndex &inIndex) const
{
    return inIndex.data(PhotoRole).value<Photo *>();
}

int PhotoListModel::rowCount(const QModelIndex &inParent) const
{
    return inParent.isValid() ? 0 : static_cast<int>(mPhotos.size());
}

QVariant PhotoListModel::data(const QModelIndex &inIndex, int inRole) const
{
    if (!inIndex.isValid())
        return {};
    Photo *photo = mPhotos[inIndex.row()];
    switch (inRole) {
    case Qt::DisplayRole: return photo->name();
    case Qt::ToolTipRole:
        return tr("%1\n%2 × %3 pixels")
            .arg(photo->path())
            .arg(photo->size().width())
            .arg(photo->size().height());
    case Qt::AccessibleDescriptionRole:
        return photo->waitsForExport() ? tr("edited") : photo->isExported() ? tr("exported") : QString();
    case PhotoRole: return QVariant::fromValue(photo);
    default: return {};
    }
}

QSize PhotoDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {200, kRowHeight};
}

void PhotoDelegate::initStyleOption(QStyleOptionViewItem *outOption, const QModelIndex &inIndex) const
{
    VantraStyledItemDelegate::initStyleOption(outOption, inIndex);
    const auto *photo = inIndex.data(PhotoListModel::PhotoRole).value<Photo *>();
    outOption->features |= QStyleOptionViewItem::HasDecoration;
    outOption->icon = QIcon(framed(photo->preview(), outOption->widget->devicePixelRatioF()));
    outOption->decorationSize = kPreviewBox;
    outOption->textElideMode = Qt::ElideMiddle;
}

void PhotoDelegate::paint(QPainter *inPainter, const QStyleOptionViewItem &inOption,
                          const QModelIndex &inIndex) const
{
    VantraStyledItemDelegate::paint(inPainter, inOption, inIndex);
    const auto *photo = inIndex.data(PhotoListModel::PhotoRole).value<Photo *>();
    if (!photo->isEdited() && !photo->isExported())
        return;
    const VantraStyleTheme &theme = VantraStyleTheme::instance();
    const bool waits = photo->waitsForExport();
    const QPixmap status = theme.tintedPixmap(
        waits ? Icons::edited() : Icons::exported(), QSize(kStatusSize, kStatusSize),
        inPainter->device()->devicePixelRatioF(), QIcon::Normal, waits ? QIcon::On : QIcon::Off,
        VantraIconPalette::IconTintingOnAlternateOffForeground, theme.windowTextColor(QPalette::Active),
        theme.colorPalette().color(VantraPalette::Normal, VantraPalette::Accent));
    inPainter->drawPixmap(QPoint(inOption.rect.right() - kMargin - kStatusSize,
                                 inOption.rect.bottom() - kMargin - kStatusSize + 2),
                          status);
}
