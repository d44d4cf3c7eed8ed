#pragma once

#include "Files/Windows/ComPointer.h"
#include "Files/Windows/FileOpSink.h"
#include "UiToolsExport.h"

#include <QtCore/QString>

#include <exception>
#include <vector>

namespace Zorvane {

/** Keeps what the shell tells of each copied item; a new operation starts with an empty list. */
class ZORVANE_UITOOLS_EXPORT FileOpCopySink : public FileOpSink
{
public:
    /** One copied item as the shell told of it, with a reference on each item. */
    struct Record
    {
        DWORD flags = 0;
        ComPointer<IShellItem> source;
        ComPointer<IShellItem> folder;
        QString newName;
        HRESULT result = E_FAIL;
        ComPointer<IShellItem> created; /**< Null where the shell made none. */
    };

    FileOpCopySink();

    const std::vector<Record>& records() const { return m_records; }
    /** Throws what came in the way of keeping a record, if anything did. */
    void rethrow() const;

    HRESULT STDMETHODCALLTYPE StartOperations() override;
    /** What is only pending is no record: the shell tells of that item again. */
    HRESULT STDMETHODCALLTYPE PostCopyItem(DWORD flags, IShellItem* item, IShellItem* folder,
                                           LPCWSTR newName, HRESULT result,
                                           IShellItem* created) override;

protected:
    ~FileOpCopySink() override;

private:
    std::vector<Record> m_records;
    std::exception_ptr m_thrown;
};

} // namespace Zorvane
