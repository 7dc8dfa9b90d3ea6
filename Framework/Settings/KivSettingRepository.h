#pragma once

#include "Base/KivGuarded.h"
#include "Base/KivResult.h"
#include "Base/KivUnicodeString.h"
#include "Settings/KivSettingInfo.h"
#include "Settings/KivSettingValue.h"

#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

class KivFileLock;
class KivSettingStore;
struct KivSettingAttribute;

// One named, persistent set of typed settings, resolved over the administrator's layers and the user's own
// file. One object a name and process, used from the user-interface thread; owned by the framework.
//
// A read answers the value in force. A write changes the working state; Commit makes that state the point
// which Rollback returns to; SaveRepository makes it durable. Where memory runs out an operation fails like
// for any other reason, with everything as it was.
class KivSettingRepository {
public:
    // What SaveRepository did. Everything up to Nothing is safe from a power failure.
    enum class Receipt {
        Nothing, // nothing had changed; no file was touched
        Durable, // on disk, file and directory flushed
        Visible, // in place for every reader, but the directory could not be flushed
        Refused, // not written; every change is still there and the next save writes it
    };

    using Keys = std::vector<KivString>;
    using Listener = std::function<void(const Keys& changed)>;
    using ListenerId = unsigned int;

    // The repository of a name; created on first use, then the same one for the life of the process. Null for
    // a name that is no plain file name. The other arguments are the framework's: domain (0), access (1: read
    // and write) and controller (none).
    static KivSettingRepository* GetRepository(const char* name, int domain = 0, int access = 1,
                                               const char* controller = nullptr);

    // Reads one value into the caller's variable. E_FAIL, and the variable untouched, when the key is absent,
    // of another type, or count is not 1.
    HRESULT ReadSetting(const char* key, int* value, long count) const { return Read(key, value, count); }
    HRESULT ReadSetting(const char* key, unsigned int* value, long count) const
    {
        return Read(key, value, count);
    }
    HRESULT ReadSetting(const char* key, float* value, long count) const { return Read(key, value, count); }
    HRESULT ReadSetting(const char* key, double* value, long count) const { return Read(key, value, count); }
    HRESULT ReadSetting(const char* key, KivUnicodeString* value, long count) const
    {
        return Read(key, value, count);
    }
    // The same for a value of the type that the variable holds, or of any type if it holds none.
    HRESULT ReadSetting(const char* key, KivSettingValue* value, long count) const
    {
        return Read(key, value, count);
    }

    // Writes one value into the working state as the user's; a value of another type is replaced. E_FAIL, and
    // nothing changed, when the key is locked, is no plain identifier, the value is not finite, or count is
    // not 1. The last argument is the framework's and has to be 0.
    HRESULT WriteSetting(const char* key, const int* value, long count, int reserved)
    {
        return Write(key, value, count, reserved);
    }
    HRESULT WriteSetting(const char* key, const unsigned int* value, long count, int reserved)
    {
        return Write(key, value, count, reserved);
    }
    HRESULT WriteSetting(const char* key, const float* value, long count, int reserved)
    {
        return Write(key, value, count, reserved);
    }
    HRESULT WriteSetting(const char* key, const double* value, long count, int reserved)
    {
        return Write(key, value, count, reserved);
    }
    HRESULT WriteSetting(const char* key, const KivUnicodeString* value, long count, int reserved)
    {
        return Write(key, value, count, reserved);
    }
    // The same for a value of any type; no value fails.
    HRESULT WriteSetting(const char* key, const KivSettingValue* value, long count, int reserved);

    // Fills the record of a key. E_FAIL, and the record left empty but for the names, when no layer knows the
    // key; the reserved argument is 0.
    HRESULT GetInfo(const char* key, KivSettingInfo* info, int reserved) const;

    // The same in short, by one look-up that copies nothing. E_FAIL for a key that no layer knows.
    HRESULT GetProvenance(const char* key, KivSettingProvenance& provenance) const;

    // Makes an ordered list of keys known: from now on the key at each index is read by that index, without a
    // look-up. Binding the same list again costs nothing; another one replaces it. A list is told by its
    // address: it has to outlive the repository, with its texts.
    void BindKeys(std::span<const char* const> keys);

    // Whether an index is one of the list that begins there, and that list is the bound one.
    bool IsBound(const char* const* keys, std::size_t index) const
    {
        return keys == _boundKeys.data() && index < _boundKeys.size();
    }
    // Reads the key at an index of a list like ReadSetting; E_FAIL too when it is not bound, as after
    // somebody else has bound a list of his own.
    template <class T> HRESULT ReadBound(const char* const* keys, std::size_t index, T* value) const
    {
        const bool isThere = keys == _boundKeys.data() && index < _shown.size();
        const T* const shown = isThere ? std::get_if<T>(_shown[index]) : nullptr;
        if (!shown || !value) return IsBound(keys, index) ? ReadUnusual(index, value) : E_FAIL;
        const auto take = [&] {
            *value = *shown;
            return S_OK;
        };
        return KivGuarded(take, E_FAIL);
    }

    // Delivers the attributes of all layers one by one, in the order of the files, outermost first. Not zero
    // when there is none (left). name and type: buffers of at least 256 characters; count: receives 1;
    // restart: not zero starts anew. A repository whose user file exists but could not be read never looks
    // empty: it delivers what it has and, failing that, one attribute of an empty name, so that nobody takes
    // it for new and writes over it.
    HRESULT NextAttribute(char* name, char* type, long* count, int restart);

    // Makes the working state the one to return to. Not zero: listeners are told which keys have changed
    // since the last commit.
    HRESULT Commit(int notify);

    // Goes back to the state of the last commit; listeners are told which keys that changed.
    HRESULT Rollback();

    // Makes the working state durable and the point to return to, and tells listeners like Commit. When it is
    // refused, a rollback still returns to the point before. Waits up to three seconds for another program
    // that is saving; KivSettingTurn is for those who must not. S_OK unless the receipt is Refused. The path
    // is the framework's and has to be null: the user's own file, or the layer opened for an administrator.
    HRESULT SaveRepository(const char* path);
    Receipt LastReceipt() const;

    // The two for some keys alone: what else has changed is neither saved nor taken back. Nothing happens
    // without a key.
    HRESULT SaveKeys(const char* const* keys, int count);
    HRESULT RollbackKeys(const char* const* keys, int count);

    // Drops the user's value of each key, so that the administrator's shows, else the reader's default; in
    // administrator mode what the edited layer says of each, value and lock. Part of the working state. Keys
    // that are not there are passed over.
    HRESULT ResetToAdminValues(const char* const* keys, int count);

    // Told after a commit, rollback, save or refresh which keys show another value or have got another
    // lock. May be removed while it is called.
    ListenerId AddListener(Listener listener);
    void RemoveListener(ListenerId listener);

    // True when the user's file is there but cannot be read: administrator values and defaults are served,
    // saves are refused and say so.
    bool IsProtected() const;

    // True when lines of the file that is written are damaged: they say nothing, and every save keeps them.
    bool IsDamaged() const;
    // Those of which that is true, among all that were asked for on the layer that is edited.
    static std::vector<KivSettingRepository*> Damaged();
    // Drops those lines from the file, which is set aside as it was. Values and uncommitted changes stay.
    // E_FAIL when the file could not be written; nothing is lost then.
    HRESULT Mend();

    // Takes what other processes and administrators have saved since; uncommitted changes of this one stay on
    // top. Answers what listeners are told: the keys with another value or lock.
    Keys Refresh();

    // The files that it is made of, whether they are there or not: the layers', outermost first, then the one
    // that it writes, unless there is no place for that.
    std::vector<KivUnicodeString> Files() const;

    // Writes a value as the user's with the mark "initial": present everywhere, but an administrator's
    // unlocked value wins over it until somebody writes the key again. While a scope is alive every
    // WriteSetting of the repository marks the keys that had no value of the user's.
    class InitialScope {
    public:
        explicit InitialScope(KivSettingRepository& repository);
        ~InitialScope();
        InitialScope(const InitialScope&) = delete;
        InitialScope& operator=(const InitialScope&) = delete;

    private:
        KivSettingRepository& _repository;
        bool _before;
    };

    // For the programs: opens every repository asked for from now on on this administrator layer instead of
    // the user's file; the layer must be one of the known ones or any directory of its own. Empty: the user's
    // file.
    static void SetEditedLayer(const KivUnicodeString& directory);
    // Its absolute path.
    static const KivUnicodeString& EditedLayer();

    // Administrator mode only: locks or unlocks a key in the edited layer, part of the working state; a
    // prefix and a star ("Dim*", "*") stand for every key that begins so. E_FAIL for a key that an outer
    // layer locks, for unlocking one that the layer locks by a prefix, and for users.
    HRESULT SetLock(const char* key, bool locked);
    bool IsAdministrator() const;

    // For tests and tools: every repository of the process forgets what it holds, without saving, and reads
    // its files anew when it is next used. Listeners are forgotten too.
    static void ForgetAll();

    // For tests: while withheld, GetRepository answers null for every name, as in a framework that has no
    // such service.
    static void Withhold(bool withheld);

    KivSettingRepository(const KivSettingRepository&) = delete;
    KivSettingRepository& operator=(const KivSettingRepository&) = delete;
    ~KivSettingRepository();

private:
    KivSettingRepository(std::string_view name, const KivUnicodeString& editedLayer);

    template <class T> HRESULT Read(const char* key, T* value, long count) const;
    // A bound key that has no value, one of another type, or has not been read since all was forgotten.
    template <class T> HRESULT ReadUnusual(std::size_t index, T* value) const;
    template <class T> HRESULT Take(const KivSettingAttribute& attribute, T& value) const;
    template <class T> HRESULT Write(const char* key, const T* value, long count, int reserved);

    template <class Work> HRESULT ChangeAndTell(const Work& change, bool tells = true);
    HRESULT Save(std::span<const char* const> only);
    HRESULT Rollback(std::span<const char* const> only);

    friend class KivSettingTurn;
    // The locks of all files that something is to be saved to.
    static std::vector<std::shared_ptr<KivFileLock>> AskTurns();

    struct Opened;
    Opened& Open() const;
    KivSettingStore& Store() const;

    KivString _name;
    KivUnicodeString _editedLayer;
    bool _isInitial = false; // writes bear the mark
    std::span<const char* const> _boundKeys;
    mutable std::unique_ptr<Opened> _opened;                // on first use
    mutable std::span<const KivSettingValue* const> _shown; // the store's, of each bound key
};
