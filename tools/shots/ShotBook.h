#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class ShotDatabase;

// What a shot may need besides widgets: a demo database, made on first use.
class ShotContext
{
public:
    ShotContext();
    ~ShotContext();
    ShotDatabase &database();

private:
    std::unique_ptr<ShotDatabase> m_database;
};

// The list of pictures haulix-shots renders: each a name and a function
// that builds the widget to photograph.
class ShotBook
{
public:
    using Maker = std::function<std::unique_ptr<QWidget>(ShotContext &)>;

    void add(const QString &name, Maker maker);

    // Renders every shot (or only those named) to <directory>/<name>.png;
    // returns the number of failures.
    int renderAll(const QString &directory, const QStringList &only = {});

private:
    struct Shot
    {
        QString name;
        Maker maker;
    };
    std::vector<Shot> m_shots;
    ShotContext m_context;
};
