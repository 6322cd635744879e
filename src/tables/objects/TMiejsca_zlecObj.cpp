#include "TMiejsca_zlecObj.h"

#include <QRegularExpression>

#include <array>
#include <stdexcept>

const TableDescription<TMiejsca_zlecObj> &TMiejsca_zlecObj::description()
{
    using T = TMiejsca_zlecObj;
    static const TableDescription<T> d{
        {QStringLiteral("MIEJSCA_ZLEC"), QStringLiteral("ID_MIEJSCA_ZLEC"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_MIEJSCA_ZLEC,
        {
            {QStringLiteral("ID_ZLECENIA"), &T::ID_ZLECENIA},
            {QStringLiteral("ADRES1"), &T::ADRES1},
            {QStringLiteral("KOD1"), &T::KOD1},
            {QStringLiteral("MIEJSCOWOSC1"), &T::MIEJSCOWOSC1},
            {QStringLiteral("ID_KRAJU1"), &T::ID_KRAJU1},
            {QStringLiteral("NAZWA1"), &T::NAZWA1},
            {QStringLiteral("ADRES2"), &T::ADRES2},
            {QStringLiteral("KOD2"), &T::KOD2},
            {QStringLiteral("MIEJSCOWOSC2"), &T::MIEJSCOWOSC2},
            {QStringLiteral("ID_KRAJU2"), &T::ID_KRAJU2},
            {QStringLiteral("NAZWA2"), &T::NAZWA2},
            {QStringLiteral("ADRES3"), &T::ADRES3},
            {QStringLiteral("KOD3"), &T::KOD3},
            {QStringLiteral("MIEJSCOWOSC3"), &T::MIEJSCOWOSC3},
            {QStringLiteral("ID_KRAJU3"), &T::ID_KRAJU3},
            {QStringLiteral("NAZWA3"), &T::NAZWA3},
            {QStringLiteral("ADRES4"), &T::ADRES4},
            {QStringLiteral("KOD4"), &T::KOD4},
            {QStringLiteral("MIEJSCOWOSC4"), &T::MIEJSCOWOSC4},
            {QStringLiteral("ID_KRAJU4"), &T::ID_KRAJU4},
            {QStringLiteral("NAZWA4"), &T::NAZWA4},
            {QStringLiteral("ADRES5"), &T::ADRES5},
            {QStringLiteral("KOD5"), &T::KOD5},
            {QStringLiteral("MIEJSCOWOSC5"), &T::MIEJSCOWOSC5},
            {QStringLiteral("ID_KRAJU5"), &T::ID_KRAJU5},
            {QStringLiteral("NAZWA5"), &T::NAZWA5},
            {QStringLiteral("ADRES6"), &T::ADRES6},
            {QStringLiteral("KOD6"), &T::KOD6},
            {QStringLiteral("MIEJSCOWOSC6"), &T::MIEJSCOWOSC6},
            {QStringLiteral("ID_KRAJU6"), &T::ID_KRAJU6},
            {QStringLiteral("NAZWA6"), &T::NAZWA6},
            {QStringLiteral("ID_ZRP"), &T::ID_ZRP},
            {QStringLiteral("ID_KONTRAHENT"), &T::ID_KONTRAHENT},
            {QStringLiteral("ADRES7"), &T::ADRES7},
            {QStringLiteral("KOD7"), &T::KOD7},
            {QStringLiteral("MIEJSCOWOSC7"), &T::MIEJSCOWOSC7},
            {QStringLiteral("ID_KRAJU7"), &T::ID_KRAJU7},
            {QStringLiteral("NAZWA7"), &T::NAZWA7},
            {QStringLiteral("ADRES8"), &T::ADRES8},
            {QStringLiteral("KOD8"), &T::KOD8},
            {QStringLiteral("MIEJSCOWOSC8"), &T::MIEJSCOWOSC8},
            {QStringLiteral("ID_KRAJU8"), &T::ID_KRAJU8},
            {QStringLiteral("NAZWA8"), &T::NAZWA8},
            {QStringLiteral("ADRES9"), &T::ADRES9},
            {QStringLiteral("KOD9"), &T::KOD9},
            {QStringLiteral("MIEJSCOWOSC9"), &T::MIEJSCOWOSC9},
            {QStringLiteral("ID_KRAJU9"), &T::ID_KRAJU9},
            {QStringLiteral("NAZWA9"), &T::NAZWA9},
            {QStringLiteral("ADRES10"), &T::ADRES10},
            {QStringLiteral("KOD10"), &T::KOD10},
            {QStringLiteral("MIEJSCOWOSC10"), &T::MIEJSCOWOSC10},
            {QStringLiteral("ID_KRAJU10"), &T::ID_KRAJU10},
            {QStringLiteral("NAZWA10"), &T::NAZWA10},
            {QStringLiteral("ADRES11"), &T::ADRES11},
            {QStringLiteral("KOD11"), &T::KOD11},
            {QStringLiteral("MIEJSCOWOSC11"), &T::MIEJSCOWOSC11},
            {QStringLiteral("ID_KRAJU11"), &T::ID_KRAJU11},
            {QStringLiteral("NAZWA11"), &T::NAZWA11},
            {QStringLiteral("ADRES12"), &T::ADRES12},
            {QStringLiteral("KOD12"), &T::KOD12},
            {QStringLiteral("MIEJSCOWOSC12"), &T::MIEJSCOWOSC12},
            {QStringLiteral("ID_KRAJU12"), &T::ID_KRAJU12},
            {QStringLiteral("NAZWA12"), &T::NAZWA12},
            {QStringLiteral("ADRES13"), &T::ADRES13},
            {QStringLiteral("KOD13"), &T::KOD13},
            {QStringLiteral("MIEJSCOWOSC13"), &T::MIEJSCOWOSC13},
            {QStringLiteral("ID_KRAJU13"), &T::ID_KRAJU13},
            {QStringLiteral("NAZWA13"), &T::NAZWA13},
            {QStringLiteral("ADRES14"), &T::ADRES14},
            {QStringLiteral("KOD14"), &T::KOD14},
            {QStringLiteral("MIEJSCOWOSC14"), &T::MIEJSCOWOSC14},
            {QStringLiteral("ID_KRAJU14"), &T::ID_KRAJU14},
            {QStringLiteral("NAZWA14"), &T::NAZWA14},
            {QStringLiteral("ADRES15"), &T::ADRES15},
            {QStringLiteral("KOD15"), &T::KOD15},
            {QStringLiteral("MIEJSCOWOSC15"), &T::MIEJSCOWOSC15},
            {QStringLiteral("ID_KRAJU15"), &T::ID_KRAJU15},
            {QStringLiteral("NAZWA15"), &T::NAZWA15},
            {QStringLiteral("ADRES16"), &T::ADRES16},
            {QStringLiteral("KOD16"), &T::KOD16},
            {QStringLiteral("MIEJSCOWOSC16"), &T::MIEJSCOWOSC16},
            {QStringLiteral("ID_KRAJU16"), &T::ID_KRAJU16},
            {QStringLiteral("NAZWA16"), &T::NAZWA16},
            {QStringLiteral("ADRES17"), &T::ADRES17},
            {QStringLiteral("KOD17"), &T::KOD17},
            {QStringLiteral("MIEJSCOWOSC17"), &T::MIEJSCOWOSC17},
            {QStringLiteral("ID_KRAJU17"), &T::ID_KRAJU17},
            {QStringLiteral("NAZWA17"), &T::NAZWA17},
            {QStringLiteral("ADRES18"), &T::ADRES18},
            {QStringLiteral("KOD18"), &T::KOD18},
            {QStringLiteral("MIEJSCOWOSC18"), &T::MIEJSCOWOSC18},
            {QStringLiteral("ID_KRAJU18"), &T::ID_KRAJU18},
            {QStringLiteral("NAZWA18"), &T::NAZWA18},
        },
    };
    return d;
}

namespace {

using T = TMiejsca_zlecObj;

struct SlotFields
{
    QString T::*adres = nullptr;
    QString T::*kod = nullptr;
    QString T::*miejscowosc = nullptr;
    int T::*kraj = nullptr;
    QString T::*nazwa = nullptr;
};

// The numbered fields of each slot, found once from the column list.
const std::array<SlotFields, T::SlotCount> &slotFields()
{
    static const auto fields = [] {
        std::array<SlotFields, T::SlotCount> result;
        static const QRegularExpression numbered(QStringLiteral("^([A-Z_]+?)(\\d+)$"));
        for (const Column<T> &column : T::description().columns) {
            const QRegularExpressionMatch match = numbered.match(column.name);
            if (!match.hasMatch())
                continue;
            SlotFields &slot = result.at(match.captured(2).toInt() - 1);
            const QString base = match.captured(1);
            if (base == QLatin1String("ID_KRAJU"))
                slot.kraj = std::get<int T::*>(column.field);
            else if (base == QLatin1String("ADRES"))
                slot.adres = std::get<QString T::*>(column.field);
            else if (base == QLatin1String("KOD"))
                slot.kod = std::get<QString T::*>(column.field);
            else if (base == QLatin1String("MIEJSCOWOSC"))
                slot.miejscowosc = std::get<QString T::*>(column.field);
            else if (base == QLatin1String("NAZWA"))
                slot.nazwa = std::get<QString T::*>(column.field);
        }
        return result;
    }();
    return fields;
}

const SlotFields &fieldsOf(int number)
{
    if (number < 1 || number > T::SlotCount)
        throw std::out_of_range("place slot out of range");
    return slotFields()[std::size_t(number - 1)];
}

} // namespace

TMiejsca_zlecObj::Slot TMiejsca_zlecObj::slot(int number) const
{
    const SlotFields &f = fieldsOf(number);
    return {this->*f.adres, this->*f.kod, this->*f.miejscowosc, this->*f.kraj, this->*f.nazwa};
}

void TMiejsca_zlecObj::setSlot(int number, const Slot &slot)
{
    const SlotFields &f = fieldsOf(number);
    this->*f.adres = slot.ADRES;
    this->*f.kod = slot.KOD;
    this->*f.miejscowosc = slot.MIEJSCOWOSC;
    this->*f.kraj = slot.ID_KRAJU;
    this->*f.nazwa = slot.NAZWA;
}
