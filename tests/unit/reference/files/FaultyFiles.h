#pragma once

#include "reference/files/PosixFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <system_error>

namespace zqbchwcx::reference {

/// The real files, of which one call fails, or from one call on all of them: a program that dies there does nothing
/// any more. Writes go in small pieces, so that a failure in the middle of a file is possible.
class FaultyFiles : public PosixFiles {
public:
    enum class Fault { FailOnce, Dead };

    static constexpr int Never = std::numeric_limits<int>::max();
    static constexpr std::size_t PieceSize = 1000;

    explicit FaultyFiles(int failingCall = Never, Fault fault = Fault::FailOnce, std::errc reason = std::errc::io_error)
        : mnFailingCall(failingCall), mFault(fault), mReason(reason)
    {
    }

    int Calls() const { return mnCalls; }
    /// The order of what a power failure could tear apart.
    const std::string& Steps() const { return msSteps; }

    std::optional<FileStatus> Status(const std::string& path) override { return Count(), PosixFiles::Status(path); }
    bool MayWrite(const std::string& path) override { return Count(), PosixFiles::MayWrite(path); }
    std::string ResolveLinks(const std::string& path) override { return Count(), PosixFiles::ResolveLinks(path); }
    Handle OpenForReading(const std::string& path) override { return Count(), PosixFiles::OpenForReading(path); }
    Handle CreateNew(const std::string& path) override { return Count(), PosixFiles::CreateNew(path); }
    Handle OpenDirectory(const std::string& path) override { return Count(), PosixFiles::OpenDirectory(path); }
    std::size_t Read(Handle handle, std::span<char> buffer) override
    {
        return Count(), PosixFiles::Read(handle, buffer);
    }
    std::size_t Write(Handle handle, std::string_view bytes) override
    {
        Count("write ");
        return PosixFiles::Write(handle, bytes.substr(0, PieceSize));
    }
    void TakePermissions(Handle handle, const FileStatus& from) override
    {
        Count(), PosixFiles::TakePermissions(handle, from);
    }
    void Flush(Handle handle) override { Count("flush "), PosixFiles::Flush(handle); }
    void Close(Handle handle) override
    {
        // The system closes the handle even when it reports an error.
        PosixFiles::Close(handle);
        Count();
    }
    void Rename(const std::string& from, const std::string& to) override
    {
        Count("rename ");
        EXPECT_EQ(DirectoryOf(from), DirectoryOf(to)) << "only within a directory is it one step";
        PosixFiles::Rename(from, to);
    }
    void Remove(const std::string& path) override { Count(), PosixFiles::Remove(path); }
    void CreateDirectories(const std::string& path) override { Count(), PosixFiles::CreateDirectories(path); }
    std::vector<std::string> List(const std::string& directory) override
    {
        return Count(), PosixFiles::List(directory);
    }
    std::optional<Handle> TryLock(const std::string& path) override { return Count(), PosixFiles::TryLock(path); }

private:
    void Count(std::string_view step = {})
    {
        msSteps += step;
        const bool fails = mFault == Fault::Dead ? ++mnCalls >= mnFailingCall : ++mnCalls == mnFailingCall;
        if (fails) throw std::system_error(std::make_error_code(mReason));
    }

    int mnFailingCall;
    Fault mFault;
    std::errc mReason;
    int mnCalls = 0;
    std::string msSteps;
};

} // namespace zqbchwcx::reference
