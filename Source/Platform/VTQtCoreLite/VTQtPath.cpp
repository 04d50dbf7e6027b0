#include "VTQtPath.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

VTQtPath::VTQtPath(const QString &inPath)
    : mPath(inPath.isEmpty() ? QString() : QDir::cleanPath(QDir::fromNativeSeparators(inPath)))
{
}

QString VTQtPath::toNativeString() const
{
    return QDir::toNativeSeparators(mPath);
}

QString VTQtPath::fileName() const
{
    return QFileInfo(mPath).fileName();
}

VTQtPath VTQtPath::parent() const
{
    return mPath.isEmpty() ? VTQtPath() : VTQtPath(QFileInfo(mPath).path());
}

VTQtPath VTQtPath::operator/(const QString &inRelative) const
{
    if (mPath.isEmpty() || QDir::isAbsolutePath(inRelative)) {
        return VTQtPath(inRelative);
    }
    return VTQtPath(mPath + QLatin1Char('/') + inRelative);
}
