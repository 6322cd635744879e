#include "PdfJoin.h"

#include "ReportError.h"

#include <QByteArrayView>
#include <QHash>
#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace {

[[noreturn]] void refuse(const char *why)
{
    throw ReportError(QStringLiteral("Nie można złożyć pliku PDF z części: %1.")
                          .arg(QString::fromUtf8(why)));
}

bool isWhitespace(char c)
{
    return c == ' ' || c == '\n' || c == '\r' || c == '\t' || c == '\f' || c == '\0';
}

bool isDelimiter(char c)
{
    return isWhitespace(c) || std::strchr("()<>[]{}/%", c) != nullptr;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Reads the PDF syntax QPdfWriter writes: integers, keywords and references.
class Reader
{
public:
    Reader(QByteArrayView text, qsizetype position = 0) : m_text(text), m_position(position) {}

    qsizetype position() const { return m_position; }
    bool atEnd() const { return m_position >= m_text.size(); }

    void skipWhitespace()
    {
        while (!atEnd() && isWhitespace(m_text[m_position]))
            ++m_position;
    }
    bool keyword(QByteArrayView word)
    {
        skipWhitespace();
        if (!m_text.sliced(m_position).startsWith(word))
            return false;
        const qsizetype after = m_position + word.size();
        if (after < m_text.size() && !isDelimiter(m_text[after]))
            return false;
        m_position = after;
        return true;
    }
    qint64 integer()
    {
        skipWhitespace();
        const qsizetype start = m_position;
        while (!atEnd() && isDigit(m_text[m_position]))
            ++m_position;
        if (start == m_position)
            refuse("oczekiwano liczby");
        return m_text.sliced(start, m_position - start).toLongLong();
    }
    // "N G R": a reference; the position stays where it was when it is not one.
    bool reference(int &number)
    {
        const qsizetype start = m_position;
        skipWhitespace();
        if (!atEnd() && isDigit(m_text[m_position])) {
            const qint64 value = integer();
            skipWhitespace();
            if (!atEnd() && isDigit(m_text[m_position])) {
                integer();
                if (keyword("R")) {
                    number = static_cast<int>(value);
                    return true;
                }
            }
        }
        m_position = start;
        return false;
    }

private:
    QByteArrayView m_text;
    qsizetype m_position;
};

// The value of a key of a dictionary that refers to another object.
int referenceAfter(QByteArrayView dictionary, QByteArrayView key)
{
    qsizetype at = dictionary.indexOf(key);
    while (at >= 0 && at + key.size() < dictionary.size()
           && !isDelimiter(dictionary[at + key.size()]))
        at = dictionary.indexOf(key, at + 1);
    if (at < 0)
        refuse("brak klucza w słowniku");
    Reader reader(dictionary, at + key.size());
    int number = 0;
    if (!reader.reference(number))
        refuse("klucz nie wskazuje obiektu");
    return number;
}

struct IndirectObject
{
    int number = 0;
    qsizetype begin = 0;
    qsizetype end = 0;
};

// One document as QPdfWriter wrote it.
struct Document
{
    explicit Document(const QByteArray &bytes);

    QByteArrayView object(int number) const;
    // The object without its stream data.
    QByteArrayView dictionary(int number) const;

    QByteArrayView bytes;
    std::vector<IndirectObject> objects; // in file order
    QHash<int, size_t> byNumber;
    int size = 0;
    int root = 0;
    int info = 0;
    int pages = 0;
    std::vector<int> kids;
};

Document::Document(const QByteArray &data) : bytes(data)
{
    const qsizetype startxref = bytes.lastIndexOf(QByteArrayView("startxref"));
    if (startxref < 0)
        refuse("brak tablicy odsyłaczy");
    Reader tail(bytes, startxref + 9);
    const qsizetype xref = tail.integer();
    if (xref <= 0 || xref >= bytes.size())
        refuse("zła pozycja tablicy odsyłaczy");
    Reader table(bytes, xref);
    if (!table.keyword("xref"))
        refuse("brak tablicy odsyłaczy");
    while (!table.keyword("trailer")) {
        const qint64 first = table.integer();
        const qint64 count = table.integer();
        for (qint64 index = 0; index < count; ++index) {
            const qint64 offset = table.integer();
            table.integer();
            if (table.keyword("n")) {
                objects.push_back({static_cast<int>(first + index), offset, 0});
            } else if (!table.keyword("f")) {
                refuse("zły wpis tablicy odsyłaczy");
            }
        }
    }
    const QByteArrayView trailer = bytes.sliced(table.position(), startxref - table.position());
    root = referenceAfter(trailer, "/Root");
    info = referenceAfter(trailer, "/Info");
    const qsizetype sizeKey = trailer.indexOf(QByteArrayView("/Size"));
    if (sizeKey < 0)
        refuse("brak rozmiaru tablicy odsyłaczy");
    size = static_cast<int>(Reader(trailer, sizeKey + 5).integer());

    std::sort(objects.begin(), objects.end(),
              [](const IndirectObject &a, const IndirectObject &b) { return a.begin < b.begin; });
    for (size_t index = 0; index < objects.size(); ++index) {
        IndirectObject &o = objects[index];
        o.end = index + 1 < objects.size() ? objects[index + 1].begin : xref;
        Reader header(bytes.sliced(o.begin, o.end - o.begin));
        if (header.integer() != o.number || header.integer() != 0 || !header.keyword("obj"))
            refuse("odsyłacz nie wskazuje początku obiektu");
        if (o.number <= 0 || o.number >= size || byNumber.contains(o.number))
            refuse("zły numer obiektu");
        byNumber.insert(o.number, index);
    }

    pages = referenceAfter(dictionary(root), "/Pages");
    const QByteArrayView tree = dictionary(pages);
    const qsizetype kidsKey = tree.indexOf(QByteArrayView("/Kids"));
    const qsizetype open = tree.indexOf('[', kidsKey);
    const qsizetype close = tree.indexOf(']', open);
    if (kidsKey < 0 || open < 0 || close < 0)
        refuse("brak listy stron");
    Reader list(tree.sliced(open + 1, close - open - 1));
    int kid = 0;
    while (list.reference(kid)) {
        // A nested page tree is not what QPdfWriter writes.
        const QByteArrayView page = dictionary(kid);
        if (!page.contains(QByteArrayView("/Type /Page")) || page.contains("/Type /Pages"))
            refuse("drzewo stron nie jest płaskie");
        kids.push_back(kid);
    }
    list.skipWhitespace();
    if (!list.atEnd())
        refuse("zła lista stron");
}

QByteArrayView Document::object(int number) const
{
    const auto found = byNumber.constFind(number);
    if (found == byNumber.constEnd())
        refuse("odsyłacz do brakującego obiektu");
    const IndirectObject &o = objects[*found];
    return bytes.sliced(o.begin, o.end - o.begin);
}

QByteArrayView Document::dictionary(int number) const
{
    const QByteArrayView text = object(number);
    const qsizetype stream = text.indexOf(QByteArrayView("stream"));
    return stream < 0 ? text : text.first(stream);
}

// Qt names a font subset after its descriptor's object: "Q" and the number
// in five letters, lowest first.
QByteArray subsetTag(int number)
{
    QByteArray tag("Q");
    for (int letter = 0; letter < 5; ++letter, number /= 26)
        tag += char('A' + number % 26);
    return tag;
}

bool isSubsetTag(QByteArrayView name)
{
    if (name.size() < 7 || name[6] != '+')
        return false;
    return std::all_of(name.begin(), name.begin() + 6, [](char c) { return c >= 'A' && c <= 'Z'; });
}

int subsetNumber(QByteArrayView tag)
{
    int number = 0;
    for (qsizetype letter = 5; letter >= 1; --letter)
        number = number * 26 + (tag[letter] - 'A');
    return number;
}

class Output
{
public:
    explicit Output(QIODevice &device) : m_device(device) {}

    void write(QByteArrayView bytes)
    {
        if (m_device.write(bytes.data(), bytes.size()) != bytes.size())
            throw ReportError(QStringLiteral("Nie można zapisać pliku PDF: %1")
                                  .arg(m_device.errorString()));
        m_written += bytes.size();
    }
    void startObject(int number)
    {
        if (static_cast<size_t>(number) >= m_offsets.size())
            m_offsets.resize(number + 1, -1);
        m_offsets[number] = m_written;
    }
    // The cross-reference table and the trailer close the file.
    void finish(int root, int info)
    {
        const qint64 xref = m_written;
        const int size = static_cast<int>(m_offsets.size());
        QByteArray table = "xref\n0 " + QByteArray::number(size) + "\n0000000000 65535 f \n";
        for (int number = 1; number < size; ++number) {
            const qint64 offset = m_offsets[number];
            table += offset < 0 ? QByteArray("0000000000 00000 f ")
                                : QByteArray::number(offset).rightJustified(10, '0') + " 00000 n ";
            table += '\n';
        }
        table += "trailer\n<<\n/Size " + QByteArray::number(size) + "\n/Info "
            + QByteArray::number(info) + " 0 R\n/Root " + QByteArray::number(root)
            + " 0 R\n>>\nstartxref\n" + QByteArray::number(xref) + "\n%%EOF\n";
        write(table);
    }

private:
    QIODevice &m_device;
    qint64 m_written = 0;
    std::vector<qint64> m_offsets{0};
};

// Copies an object of a later document under its new number: references and
// font subset names renumbered, stream data as it is.
void copyRenumbered(Output &out, QByteArrayView text, const QHash<int, int> &numbers)
{
    const auto renumbered = [&](int number) {
        const auto found = numbers.constFind(number);
        if (found == numbers.constEnd())
            refuse("odsyłacz do obiektu spoza dokumentu");
        return *found;
    };
    Reader reader(text);
    const int number = static_cast<int>(reader.integer());
    reader.integer();
    reader.keyword("obj");
    QByteArray result = QByteArray::number(renumbered(number)) + " 0 obj";
    qsizetype at = reader.position();
    while (at < text.size()) {
        const char c = text[at];
        if (c == '(') {
            // A literal string, nested parentheses and escapes included.
            qsizetype end = at + 1;
            for (int depth = 1; end < text.size() && depth > 0; ++end) {
                if (text[end] == '\\')
                    ++end;
                else if (text[end] == '(')
                    ++depth;
                else if (text[end] == ')')
                    --depth;
            }
            result += text.sliced(at, end - at);
            at = end;
        } else if (c == '/') {
            qsizetype end = at + 1;
            while (end < text.size() && !isDelimiter(text[end]))
                ++end;
            const QByteArrayView name = text.sliced(at + 1, end - at - 1);
            if (isSubsetTag(name) && numbers.contains(subsetNumber(name))) {
                result += '/' + subsetTag(numbers.value(subsetNumber(name))) + name.sliced(6);
            } else {
                result += text.sliced(at, end - at);
            }
            at = end;
        } else if (isDigit(c) && (at == 0 || isDelimiter(text[at - 1]))) {
            Reader candidate(text, at);
            int target = 0;
            if (candidate.reference(target)) {
                result += QByteArray::number(renumbered(target)) + " 0 R";
                at = candidate.position();
            } else {
                qsizetype end = at;
                while (end < text.size() && !isDelimiter(text[end]))
                    ++end;
                result += text.sliced(at, end - at);
                at = end;
            }
        } else if (text.sliced(at).startsWith("stream")
                   && (at + 6 >= text.size() || isWhitespace(text[at + 6]))) {
            break;
        } else {
            result += c;
            ++at;
        }
    }
    out.write(result);
    out.write(text.sliced(at));
}

} // namespace

void PdfJoin::join(const std::vector<QByteArray> &documents, QIODevice &device)
{
    if (documents.empty())
        refuse("brak części");
    std::vector<Document> parts;
    parts.reserve(documents.size());
    for (const QByteArray &bytes : documents)
        parts.emplace_back(bytes);
    const Document &first = parts.front();

    // The first document keeps its numbers; the objects of each later one
    // follow, except its own catalogue, information and page tree.
    std::vector<QHash<int, int>> numbers(parts.size());
    std::vector<int> kids = first.kids;
    int next = first.size;
    for (size_t index = 1; index < parts.size(); ++index) {
        const Document &part = parts[index];
        std::vector<int> kept;
        for (const IndirectObject &o : part.objects) {
            if (o.number != part.root && o.number != part.info && o.number != part.pages)
                kept.push_back(o.number);
        }
        std::sort(kept.begin(), kept.end());
        for (int number : kept)
            numbers[index].insert(number, next++);
        numbers[index].insert(part.pages, first.pages);
        for (int kid : part.kids)
            kids.push_back(numbers[index].value(kid));
    }

    Output out(device);
    out.write(first.bytes.first(first.objects.front().begin));
    for (const IndirectObject &o : first.objects) {
        if (o.number == first.pages)
            continue;
        out.startObject(o.number);
        out.write(first.bytes.sliced(o.begin, o.end - o.begin));
    }
    for (size_t index = 1; index < parts.size(); ++index) {
        const Document &part = parts[index];
        for (const IndirectObject &o : part.objects) {
            if (o.number == part.root || o.number == part.info || o.number == part.pages)
                continue;
            out.startObject(numbers[index].value(o.number));
            copyRenumbered(out, part.bytes.sliced(o.begin, o.end - o.begin), numbers[index]);
        }
    }
    out.startObject(first.pages);
    QByteArray tree = QByteArray::number(first.pages) + " 0 obj\n<<\n/Type /Pages\n/Kids\n[\n";
    for (int kid : kids)
        tree += QByteArray::number(kid) + " 0 R\n";
    tree += "]\n/Count " + QByteArray::number(static_cast<qsizetype>(kids.size()))
        + "\n>>\nendobj\n";
    out.write(tree);
    out.finish(first.root, first.info);
}
