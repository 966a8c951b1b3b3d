#pragma once

#include "zqbchwcx/reference/files/PosixFiles.h"

#include <gtest/gtest.h>

#include <system_error>

namespace zqbchwcx::reference {

/// The real files, of which one call that writing needs fails, or from one call on all of them: a program that dies
/// there does nothing any more. Writes go in small pieces, so that a failure in the middle of a file is possible.
class FaultyFiles : public PosixFiles {
public:
    enum class Fault { FailOnce, Dead };

    /// With call 0 none fails.
    explicit FaultyFiles(int failingCall = 0, Fault fault = Fault::FailOnce) : mnFailingCall(failingCall), mFault(fault)
    {
    }

    int Calls() const { return mnCalls; }
    /// The order of what a power failure could tear apart.
    const std::string& Steps() const { return msSteps; }

    std::optional<FileStatus> Status(const std::string& path) override { return Count(), PosixFiles::Status(path); }
    bool MayWrite(const std::string& path) override { return Count(), PosixFiles::MayWrite(path); }
    std::string ResolveLinks(const std::string& path) override { return Count(), PosixFiles::ResolveLinks(path); }
    Handle CreateNew(const std::string& path) override { return Count(), PosixFiles::CreateNew(path); }
    bool RemoveAbandoned(const std::string& path) override { return Count(), PosixFiles::RemoveAbandoned(path); }
    std::vector<std::string> List(const std::string& directory) override
    {
        return Count(), PosixFiles::List(directory);
    }
    Handle OpenDirectory(const std::string& path) override { return Count(), PosixFiles::OpenDirectory(path); }
    std::size_t Write(Handle handle, std::string_view bytes) override
    {
        Count("write ");
        constexpr std::size_t PieceSize = 1000;
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
    std::optional<Handle> TryLock(const std::string& path) override { return Count(), PosixFiles::TryLock(path); }

private:
    void Count(std::string_view step = {})
    {
        msSteps += step;
        const bool dead = mFault == Fault::Dead && mnCalls >= mnFailingCall;
        if (++mnCalls == mnFailingCall || dead)
            throw std::system_error(std::make_error_code(std::errc::no_space_on_device));
    }

    int mnFailingCall;
    Fault mFault;
    int mnCalls = 0;
    std::string msSteps;
};

} // namespace zqbchwcx::reference
