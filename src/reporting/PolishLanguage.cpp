#include "PolishLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

QTranslator *usePolishLanguage()
{
    const QLocale polish(QLocale::Polish, QLocale::Poland);
    QLocale::setDefault(polish);
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (!translator->load(polish, QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return nullptr;
    QCoreApplication::installTranslator(translator.get());
    return translator.release();
}
