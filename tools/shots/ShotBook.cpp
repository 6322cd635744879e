#include "ShotBook.h"

#include "ShotDatabase.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <cstdio>
#include <exception>

ShotContext::ShotContext() = default;
ShotContext::~ShotContext() = default;

ShotDatabase &ShotContext::database()
{
    if (!m_database)
        m_database = std::make_unique<ShotDatabase>();
    return *m_database;
}

void ShotBook::add(const QString &name, Maker maker)
{
    m_shots.push_back({name, std::move(maker)});
}

int ShotBook::renderAll(const QString &directory, const QStringList &only)
{
    QDir().mkpath(directory);
    int failures = 0;
    for (const Shot &shot : m_shots) {
        if (!only.isEmpty() && !only.contains(shot.name))
            continue;
        const QString path = QDir(directory).filePath(shot.name + QStringLiteral(".png"));
        try {
            const std::unique_ptr<QWidget> widget = shot.maker(m_context);
            widget->show();
            QApplication::processEvents();
            if (!widget->grab().save(path))
                throw std::runtime_error("cannot write the picture");
            widget->hide();
            std::printf("%s\n", qPrintable(path));
        } catch (const std::exception &error) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(shot.name), error.what());
            ++failures;
        }
    }
    return failures;
}
