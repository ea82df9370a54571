/*
 * NorvepaBl64x: the configuration store of an industrial communication stack, for C and C++.
 *
 * What holds for every function:
 *
 *   Text        is UTF-16 with a terminator. Names are compared without regard to case and stored as given.
 *   Results     are the words of NorvepaResult, 0 for success. No exception and no signal leaves a call.
 *               Beside the words, 14 (the system's ERROR_OUTOFMEMORY) tells that memory ran out.
 *   Outputs     are buffers of the caller's, each with a length, in and out, in characters and never in
 *               bytes. In: what the buffer holds, terminator included. Out: the length of the text,
 *               terminator not counted. A text of n characters needs a buffer of n + 1; a smaller one is
 *               left as it is, the length becomes n, and the result is PGSP_ERR_BUFFER_TOO_SHORT. After
 *               any other failure buffer and length are as they were, unless a function says otherwise.
 *   Ownership   stays with the caller for all that goes in and for all buffers; nothing is kept after
 *               the return, and nothing has to be released.
 *   Threads     Any function may be called on any thread, any number at once. Two calls that write the
 *               same file are not serialised: the last one to save wins.
 *   Roots       are looked up at every call, below HKEY_LOCAL_MACHINE in
 *               SOFTWARE\Marvolt\Shared Tools\NorvDOS64: Corvane_Oam_Data is the data folder and
 *               Corvane_Oam the program folder. Without the value it is the folder
 *               Marvolt\Automation\Corvane OAM below the common application data and the common
 *               program files, if that exists.
 */
#ifndef NORVEPA_H
#define NORVEPA_H

#include <stdint.h>
#include <wchar.h>

#ifdef __cplusplus
extern "C"
{
#endif

/* The result codes. Below 8000 they are the operating system's own numbers for the same situation. */
#ifdef __cplusplus
enum NorvepaResult : int32_t
#else
enum NorvepaResult
#endif
{
    PGSP_OK = 0,                                 /* success */
    PGSP_ERR_ACCESS_DENIED = 5,                  /* an existence test: the file is there, the access isn't */
    PGSP_ERR_INVALID_PARAMETERS = 87,            /* an argument is missing or malformed */
    PGSP_ERR_BUFFER_TOO_SHORT = 234,             /* the length now says how long the text is */
    PGSP_ERR_NO_MORE_ITEMS = 259,                /* the index lies past the last item */
    PGSP_ERR_LOG_DEVICE_NOT_EXISTS = 8012,       /* the log device's file is missing or can't be loaded */
    PGSP_ERR_LOG_DEVICE_NOT_DELETABLE = 8030,    /* the log device refuses its deletion */
    PGSP_ERR_NOT_REGISTERED = 8040,              /* no such registration for notification */
    PGSP_ERR_PARAM_DESC_NOT_FOUND = 8044,        /* the parameter has no description */
    PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND = 8046, /* neither the parameter nor a default for it */
    PGSP_NOT_IN_LIST = 8050,                     /* the value isn't one of those allowed */
    PGSP_NOT_A_BOOL = 8052,                      /* the value is neither "true" nor "false" */
    PGSP_SET_VAL_LESS_THAN_MIN = 8054,           /* the value lies under the minimum */
    PGSP_SET_VAL_BIGGER_THAN_MAX = 8056,         /* the value lies over the maximum */
    PGSP_NOT_IN_STEP = 8058,                     /* the value lies between two steps */
    PGSP_PROFILE_NO_VALUE = 8062,                /* the profile has no value for the parameter */
    PGSP_ERR_CANT_LOAD_DLL = 8101,               /* a resource library can't be loaded */
    PGSP_CANT_CREATE_TEMP_LOG_DEVICE = 8120,     /* no temporary log device could be made */
    PGSP_LOCKED_BY_THIS_THREAD = 8202,           /* the lock is held by the calling thread */
    PGSP_LOCKED_BY_OTHER_THREAD = 8204,          /* the lock is held by another thread */
    PGSP_ERR_FILE_NOT_FOUND = 8503,              /* the file is absent */
    PGSP_ERR_FILE_EXISTS = 8504,                 /* the file is there already */
    PGSP_ERR_CANT_CREATE_XML_ENGINE = 8505,      /* the document engine can't be created: is COM initialised? */
    PGSP_ERR_INVALID_FILE = 8506,                /* the file doesn't satisfy its schema */
    PGSP_ERR_CANT_LOAD_XML_FILE = 8508,          /* the file can't be opened or parsed, or is too large */
    PGSP_ERR_CANT_LOAD_SCHEMA = 8509,            /* the schema can't be loaded */
    PGSP_ERR_CANT_CREATE_FILE = 8510,            /* the file can't be created or saved */
    PGSP_ERR_CANT_DELETE_FILE = 8511,            /* the file can't be deleted */
    PGSP_ERR_CANT_COPY_FILE = 8512,              /* the file can't be copied or renamed */
    PGSP_ERR_PARAM_NOT_FOUND = 8513,             /* the file holds no such parameter, section or item */
    PGSP_ERR_CANT_SET_VALUE = 8514,              /* neither the parameter nor a section to create it in */
    PGSP_ERR_SAME_VALUE = 8515,                  /* the parameter has this value already */
    PGSP_ERR_DRIVER_READ = 8516,                 /* the log device says nothing of what to load */
    PGSP_ERR_FOLDER_NOT_FOUND = 8517,            /* the data folder or the program folder can't be found */
    PGSP_ERR_DUPLICATE_EVENT = 8519,             /* the event is registered already */
    PGSP_ERR_DRIVER_BUFFER = 8520,               /* a write into the driver's records failed */
    PGSP_ERR_DRIVER_NO_MEMORY = 8521,            /* the driver's records can't grow */
    PGSP_ERR_CANT_LOAD_RESOURCE = 8522           /* a resource text can't be loaded */
};

/* Log names: named access points, each linked to a log device -------------------------------------- */

/*
 * Makes a log name: a file with the parameter "enable_delete" set to "true".
 *
 *   LogName  in  the new log name
 *
 * PGSP_OK                          made
 * PGSP_ERR_INVALID_PARAMETERS      LogName is null
 * PGSP_ERR_BUFFER_TOO_SHORT        the path has 260 characters or more
 * PGSP_ERR_FILE_EXISTS             there is such a log name; it is left as it is
 * PGSP_ERR_CANT_CREATE_FILE        the file can't be created or saved
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  COM isn't initialised on this thread; an empty file stays behind
 * PGSP_ERR_FOLDER_NOT_FOUND        the data folder can't be found
 *
 * Notifies "LogNames", the log name, when the file is new.
 */
int32_t LogNameCreateBL(const wchar_t* LogName);

/*
 * Removes a log name with all its values, whether or not it is locked.
 *
 *   LogName  in  the log name
 *
 * PGSP_OK                      removed
 * PGSP_ERR_INVALID_PARAMETERS  LogName is null
 * PGSP_ERR_BUFFER_TOO_SHORT    the path has 260 characters or more
 * PGSP_ERR_CANT_DELETE_FILE    there is no such log name, or its file is in use or protected
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 *
 * Notifies "LogNames", the log name, when it was removed.
 */
int32_t LogNameDeleteBL(const wchar_t* LogName);

/*
 * Tells whether a log name exists and may be used.
 *
 *   LogName  in  the log name
 *   flag     in  what is asked: 0 existence, 2 writing, 4 reading, 6 both
 *
 * PGSP_OK                      it does
 * PGSP_ERR_ACCESS_DENIED       it exists, the access isn't allowed
 * PGSP_ERR_INVALID_PARAMETERS  LogName is null or empty, flag is another number, or the name makes no path
 * PGSP_ERR_BUFFER_TOO_SHORT    the escaped name has 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND      there is no such log name
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 *
 * Notifies nobody.
 */
int32_t LogNameExistBL(const wchar_t* LogName, int32_t flag);

/*
 * Enumerates the log names that aren't hidden: ask for index 0, 1, 2 and so on until there are no more. The
 * order is the folder's; nothing is kept from call to call.
 *
 *   index       in      which one, hidden ones not counted
 *   LogName     out     buffer for the name
 *   LogNameLen  in/out  its length in characters
 *
 * PGSP_OK                      LogName and LogNameLen are set
 * PGSP_ERR_INVALID_PARAMETERS  LogName or LogNameLen is null
 * PGSP_ERR_NO_MORE_ITEMS       index lies past the last one, or a name up to it doesn't fit the buffer;
 *                              LogName and LogNameLen are as they were
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 *
 * Notifies nobody.
 */
int32_t LogNameGetEnumBL(uint32_t index, wchar_t* LogName, uint32_t* LogNameLen);

/*
 * Tells which log device a log name stands for. That device need not exist any more.
 *
 *   LogName    in      the log name
 *   LogDevice  out     buffer for the log device's name; empty when the log name is unlinked
 *   dwValue    in/out  its length in characters
 *
 * PGSP_OK                      LogDevice and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  LogName is null or empty, LogDevice or dwValue is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValue says the name's length; also for a path of 260 characters or more
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such log name, or its file can't be opened
 * PGSP_ERR_PARAM_NOT_FOUND     it has never been linked
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 *
 * Notifies nobody.
 */
int32_t LogNameGetLogDeviceBL(const wchar_t* LogName, wchar_t* LogDevice, uint32_t* dwValue);

/*
 * Reads one value of one log name, from its file as it is now. No default is applied.
 *
 *   LogName    in      the log name
 *   Parameter  in      the parameter; null or "" reads the parameter "(default)"
 *   Value      out     buffer for the value
 *   dwValue    in/out  length of Value in characters, by the rule above; 0 is a buffer too short
 *
 * PGSP_OK                      Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  LogName is null or empty, Value or dwValue is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValue says the value's length; also, with dwValue as it was, for a
 *                              path of 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND      there is no such log name, or its file can't be opened
 * PGSP_ERR_PARAM_NOT_FOUND     it has no such parameter, or its file isn't well-formed up to it
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 *
 * Notifies nobody.
 */
int32_t LogNameGetValueBL(const wchar_t* LogName, const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue);

/*
 * Sets one value of a log name, and adds the parameter when it isn't there. No word is protected.
 *
 *   LogName    in  the log name
 *   Parameter  in  the parameter, without any of  blank []^!"$%&()=?'#+><*|;,  or the section sign or the
 *                  acute accent; null or "" stands for "(default)", which these rules refuse
 *   Value      in  the value, without < and >; "" is a value
 *
 * PGSP_OK                          set, or set already: a value that differs in case alone is the same
 * PGSP_ERR_INVALID_PARAMETERS      LogName is null or empty, Value is null, or a character isn't allowed
 * PGSP_ERR_BUFFER_TOO_SHORT        the path has 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND          there is no such log name
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  the document engine can't be created
 * PGSP_ERR_CANT_LOAD_XML_FILE      its file is malformed or over 10,000,000 bytes
 * PGSP_ERR_CANT_SET_VALUE          its file has no section "Parameters"
 * PGSP_ERR_FOLDER_NOT_FOUND        the data folder can't be found
 *
 * Notifies "LogNames", the log name, when the value has changed. COM is initialised for the call where the
 * thread hasn't; it stays initialised when the file can't be loaded.
 */
int32_t LogNameSetValueBL(const wchar_t* LogName, const wchar_t* Parameter, const wchar_t* Value);

/*
 * Removes a parameter of a log name. The result is validated before it takes the file's place.
 *
 *   LogName    in  the log name
 *   Parameter  in  the parameter
 *
 * PGSP_OK                          removed
 * PGSP_ERR_INVALID_PARAMETERS      LogName or Parameter is null or empty
 * PGSP_ERR_BUFFER_TOO_SHORT        the path has 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND          there is no such log name
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  COM isn't initialised on this thread
 * PGSP_ERR_INVALID_FILE            the schema doesn't allow it; the log name is as it was
 * PGSP_ERR_CANT_LOAD_XML_FILE      its file is malformed or over 10,000,000 bytes
 * PGSP_ERR_CANT_LOAD_SCHEMA        the schema is missing or malformed; the log name is as it was
 * PGSP_ERR_CANT_DELETE_FILE        its file is in use or protected and stays; the new form stays beside it
 * PGSP_ERR_PARAM_NOT_FOUND         it has no such parameter
 * PGSP_ERR_FOLDER_NOT_FOUND        the data folder or the program folder can't be found
 *
 * Notifies "LogNames", the log name, when it was removed.
 */
int32_t LogNameDelValueBL(const wchar_t* LogName, const wchar_t* Parameter);

/* Notification: named events of the caller's, set when a stored file changes ------------------------ */

/*
 * Registers an event, so that every successful change made through this library in this process sets it.
 *
 *   FolderName  in   the folder word: "LogDevices", "LogNames" or "meta"; 128 characters count
 *   FileName    in   one file of that folder, as its plain name; null or "" means every file; 256 count
 *   EventName   in   the name of an event that the caller has created, of the session or, with "Global\"
 *                    in front, of the machine; 64 characters count. It is opened by name at each change and
 *                    never kept open: one that can't be opened then is dropped, and its name is free again.
 *
 * The event carries no data; what changed is to be asked for. An event is registered at most once, whatever
 * it is registered for. Temporary log devices are never announced.
 *
 * PGSP_OK                      registered
 * PGSP_ERR_INVALID_PARAMETERS  FolderName or EventName is null or empty
 * PGSP_ERR_DUPLICATE_EVENT     an event of this name is registered already
 */
int32_t RegisterNotification(const wchar_t* FolderName, const wchar_t* FileName, const wchar_t* EventName);

/*
 * Takes a registration back. A change that is being announced at this time may still set the event.
 *
 *   FolderName  in   as registered
 *   FileName    in   as registered; null or "" finds the registration whatever file it is for
 *   EventName   in   as registered
 *
 * PGSP_OK                      taken back
 * PGSP_ERR_INVALID_PARAMETERS  FolderName or EventName is null or empty
 * PGSP_ERR_NOT_REGISTERED      there is no such registration, or none at all
 */
int32_t UnRegisterNotification(const wchar_t* FolderName, const wchar_t* FileName, const wchar_t* EventName);

/* The module --------------------------------------------------------------------------------------- */

/*
 * Drops what the library has parsed and its watch of the data folder. The library stays usable and
 * builds both anew when it needs them. Harmless when there is nothing to drop. No other call may be
 * under way in this process meanwhile.
 */
void NorvepaBl64x_deinit(void);

#ifdef __cplusplus
}
#endif

#endif
