#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

// The official FA(3) schema set, built into the program, and the check of
// a document against it with libxml2. Reading the schema takes a while:
// one object checks any number of documents.
class KsefSchema
{
public:
    // Throws KsefError when the built-in schema cannot be read.
    KsefSchema();
    ~KsefSchema();
    KsefSchema(const KsefSchema &) = delete;
    KsefSchema &operator=(const KsefSchema &) = delete;

    // What is wrong with the document, one Polish sentence per problem
    // naming the element, its line and the reason; empty when it is valid.
    QStringList problems(const QByteArray &document) const;

    // Throws KsefError with the first problem, the document named as given
    // ("Faktura 001/07/2026").
    void check(const QByteArray &document, const QString &what) const;

    // Where the schema's files are in the program's resources.
    static QString resourceDirectory();

private:
    struct Parsed;
    std::unique_ptr<Parsed> m_parsed;
};
