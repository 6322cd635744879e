#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class Connection;
class PdfBook;

// The printouts haulix-print knows, by the name given on its command line.
// Each lays its reports out into a book; what it needs besides the
// database comes as its arguments.
namespace PrintJobs {

struct Job
{
    QString name;
    QString arguments;     // how the usage text names them, e.g. "ID"
    QString description;   // a line of the usage text
    int argumentCount = 0;
    // Throws PrintoutError for data that is not there, DbError when the
    // database fails, std::invalid_argument for a malformed argument.
    std::function<void(PdfBook &book, Connection &connection, const QStringList &arguments)> run;
    // Options the job also takes, each with one value ("--carrier"). The
    // command line may give them anywhere after the job's name; the job
    // gets them after its arguments.
    QStringList options = {};
    // Switches it takes without a value ("--own"), anywhere after its
    // name; the job gets them after its options.
    QStringList flags = {};
};

const std::vector<Job> &all();
// Null for a name no job has.
const Job *find(const QString &name);

} // namespace PrintJobs
