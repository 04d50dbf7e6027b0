#include "GalleryLanguage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>

#include <memory>

namespace {
const QString kLibraryFolder = QStringLiteral(":/VTWidgets/Translations");
const QString kLibraryName = QStringLiteral("VTWidgetsLite_");
const QString kSuffix = QStringLiteral(".qm");
} // namespace

QStringList GalleryLanguage::codes()
{
    QStringList codes = {QStringLiteral("en")};
    const QStringList files = QDir(kLibraryFolder).entryList({kLibraryName + QLatin1Char('*') + kSuffix});
    for (const QString &file : files)
        codes << file.mid(kLibraryName.size()).chopped(kSuffix.size());
    return codes;
}

void GalleryLanguage::install(const QString &inCode)
{
    const QString places[][2] = {
        {QStringLiteral("qtbase_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)},
        {kLibraryName, kLibraryFolder},
        {QStringLiteral("vtwidgets-gallery_"), QStringLiteral(":/Gallery/Translations")},
    };
    for (const auto &[name, folder] : places) {
        auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
        if (translator->load(name + inCode, folder))
            QCoreApplication::installTranslator(translator.release());
    }
}
