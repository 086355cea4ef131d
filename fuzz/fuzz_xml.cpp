// XML records: ASAttribute::setXmlAttrs and the report titles' reader, each on the input text.
#include "core/asattribute.h"
#include "fuzzhome.h"
#include "reports/reportsettings.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzzApplication();
    static ReportSettings *titles = new ReportSettings;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    ASAttribute record;
    if (record.setXmlAttrs(text)) {
        // What was read writes out and reads back to the same record.
        ASAttribute again;
        if (!again.setXmlAttrs(record.getXmlAttrs("dt")) || !(again == record))
            abort();
    }
    titles->setData(text);
    titles->getData();
    return 0;
}
