#include "core/sortinfo.h"

#include "core/asattribute.h"
#include "core/helpers.h"

// a <= b, written as not (b < a) so that equal texts compare true.
static bool notAfter(const QString &a, const QString &b)
{
    return !(b < a);
}

static QString text(const ASAttribute &record, const QString &key)
{
    return record.attr(key, QString());
}

// Start time of the named shift; empty for an unknown shift, which therefore sorts first.
static QString shiftStart(const ASAttribute &record)
{
    ASAttribute shift;
    getShiftByName(text(record, "shiftname"), shift);
    return text(shift, "starttm");
}

// Only a's kind is looked at: a list holds records of one kind.
bool sortInfo(ASAttribute &a, ASAttribute &b)
{
    const QString type = text(a, "infotype");
    if (type == "group")
        return notAfter(text(a, "name"), text(b, "name"));
    if (type == "shift") {
        const QString key = text(a, "infosubtype") == "cus" ? "abbreviation" : "starttm";
        return notAfter(text(a, key), text(b, key));
    }
    if (type != "staff" && type != "schedule" && type != "permanentschedule")
        return false;
    if (type == "schedule" && text(a, "date") != text(b, "date"))
        return notAfter(text(a, "date"), text(b, "date"));
    if (text(a, "groupname") != text(b, "groupname"))
        return notAfter(text(a, "groupname"), text(b, "groupname"));
    if (type == "staff")
        return notAfter(text(a, "id"), text(b, "id"));
    return notAfter(shiftStart(a), shiftStart(b));
}

// Bottom-up merge sort. sortInfo is not a strict weak order, which std::sort may punish by
// running past the range; here every index is bounded by the runs being merged.
void sortRecords(QVector<ASAttribute> &records)
{
    const qsizetype n = records.size();
    if (n < 2)
        return;
    QVector<ASAttribute> merged(n);
    for (qsizetype width = 1; width < n; width *= 2) {
        for (qsizetype lo = 0; lo < n; lo += 2 * width) {
            const qsizetype mid = qMin(lo + width, n);
            const qsizetype hi = qMin(lo + 2 * width, n);
            qsizetype i = lo, j = mid, k = lo;
            while (i < mid && j < hi) {
                if (sortInfo(records[i], records[j]))
                    merged[k++] = records[i++];
                else
                    merged[k++] = records[j++];
            }
            while (i < mid)
                merged[k++] = records[i++];
            while (j < hi)
                merged[k++] = records[j++];
        }
        records.swap(merged);
    }
}
