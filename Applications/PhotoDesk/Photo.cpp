#include "Photo.h"

#include "PhotoRenderer.h"

#include <QtCore/QFileInfo>

namespace {
constexpr QSize kPreviewSize(168, 120); // in pixels, for a display of double resolution
}

class Photo::Step : public QUndoCommand
{
public:
    Step(Photo &inPhoto, const QString &inName, const PhotoAdjustments &inAfter)
        : QUndoCommand(inName), mPhoto(inPhoto), mNumber(inPhoto.mStep), mBefore(inPhoto.mAdjustments),
          mAfter(inAfter)
    {
    }
    int id() const override { return 1; }
    void undo() override { mPhoto.setAdjustments(mBefore); }
    void redo() override { mPhoto.setAdjustments(mAfter); }
    bool mergeWith(const QUndoCommand *inNext) override
    {
        const auto *next = static_cast<const Step *>(inNext);
        if (next->mNumber != mNumber || next->text() != text())
            return false;
        mAfter = next->mAfter;
        setObsolete(mAfter == mBefore);
        return true;
    }

private:
    Photo &mPhoto;
    const int mNumber;
    const PhotoAdjustments mBefore;
    PhotoAdjustments mAfter;
};

Photo::Photo(const QString &inPath, const QSize &inSize, QObject *inParent)
    : QObject(inParent), mPath(inPath), mSize(inSize)
{
}

QString Photo::name() const
{
    return QFileInfo(mPath).fileName();
}

void Photo::change(const QString &inName, const PhotoAdjustments &inAdjustments)
{
    if (inAdjustments != mAdjustments)
        mHistory.push(new Step(*this, inName, inAdjustments));
}

void Photo::setAdjustments(const PhotoAdjustments &inAdjustments)
{
    mAdjustments = inAdjustments;
    mPreview = QPixmap();
    emit adjustmentsChanged();
    emit changed();
}

void Photo::setExported(const PhotoAdjustments &inAdjustments)
{
    mExported = true;
    mExportedAdjustments = inAdjustments;
    emit changed();
}

void Photo::setThumbnail(const QImage &inThumbnail)
{
    mThumbnail = inThumbnail;
    mSmallThumbnail = inThumbnail.scaled(kPreviewSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    mPreview = QPixmap();
    emit changed();
}

const QPixmap &Photo::preview() const
{
    if (mPreview.isNull() && !mSmallThumbnail.isNull())
        mPreview = QPixmap::fromImage(PhotoRenderer::render(mAdjustments, mSmallThumbnail));
    return mPreview;
}
