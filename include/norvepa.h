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
 *               the return, and nothing has to be released but what norvDriverReadLogDevice hands out.
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
    PGSP_ERR_CANT_CREATE_XML_ENGINE = 8505, /* the document engine can't be created: is COM initialised? */
    PGSP_ERR_INVALID_FILE = 8506,           /* the file doesn't satisfy its schema */
    PGSP_ERR_CANT_LOAD_XML_FILE = 8508,     /* the file can't be opened or parsed, or is too large */
    PGSP_ERR_CANT_LOAD_SCHEMA = 8509,       /* the schema can't be loaded */
    PGSP_ERR_CANT_CREATE_FILE = 8510,       /* the file can't be created or saved */
    PGSP_ERR_CANT_DELETE_FILE = 8511,       /* the file can't be deleted */
    PGSP_ERR_CANT_COPY_FILE = 8512,         /* the file can't be copied or renamed */
    PGSP_ERR_PARAM_NOT_FOUND = 8513,        /* the file holds no such parameter, section or item */
    PGSP_ERR_CANT_SET_VALUE = 8514,         /* neither the parameter nor a section to create it in */
    PGSP_ERR_SAME_VALUE = 8515,             /* the parameter has this value already */
    PGSP_ERR_DRIVER_READ = 8516,            /* the log device says nothing of what to load */
    PGSP_ERR_FOLDER_NOT_FOUND = 8517,       /* the data folder or the program folder can't be found */
    PGSP_ERR_DUPLICATE_EVENT = 8519,        /* the event is registered already */
    PGSP_ERR_DRIVER_BUFFER = 8520,          /* a write into the driver's records failed */
    PGSP_ERR_DRIVER_NO_MEMORY = 8521,       /* the driver's records can't grow */
    PGSP_ERR_CANT_LOAD_RESOURCE = 8522      /* a resource text can't be loaded */
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
int32_t LogNameGetValueBL(const wchar_t* LogName, const wchar_t* Parameter, wchar_t* Value,
                          uint32_t* dwValue);

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

/*
 * Enumerates the parameters of a log name: ask for index 0, 1, 2 and so on. Arguments and results as
 * LogDeviceGetEnumValueBL, and PGSP_ERR_FOLDER_NOT_FOUND when the data folder can't be found.
 */
int32_t LogNameGetEnumValueBL(const wchar_t* LogName, uint32_t index, wchar_t* Parameter, uint32_t* parLen,
                              wchar_t* Value, uint32_t* valLen);

/*
 * Reads several values of a log name at once, or all of them. Arguments and results as
 * LogDeviceGetValueListBL, but that Section plays no part: a log name has one section. DeviceID and CP_TYPE
 * are attributes of the root element here, also when there is a parameter of that name.
 */
int32_t LogNameGetValueListBL(const wchar_t* LogName, const wchar_t* Section, const wchar_t* ParameterList,
                              int32_t paramListLength, wchar_t* Value, uint32_t* dwValue);

/*
 * Links a log name to a log device, and copies the log device's CP_TYPE.
 *
 *   LogName    in  the log name
 *   LogDevice  in  the log device; "" unlinks, and CP_TYPE stays as it was
 *
 * PGSP_OK                         linked or unlinked, also when it was so already
 * PGSP_ERR_INVALID_PARAMETERS     LogName is null or empty, or LogDevice is null
 * PGSP_ERR_LOG_DEVICE_NOT_EXISTS  there is no such log device; nothing has changed
 * PGSP_LOCKED_BY_OTHER_THREAD     the parameter LOCKED_BY_THREAD_POINTER of the log name holds something else
 *                                 than the calling thread's id as decimal text; nothing has changed
 * PGSP_ERR_FOLDER_NOT_FOUND       the data folder can't be found
 * and those of LogNameSetValueBL
 *
 * Notifies "LogNames", the log name, for each of the two parameters that is another than before.
 */
int32_t LogNameSetLogDeviceBL(const wchar_t* LogName, const wchar_t* LogDevice);

/* Log devices: the configured access paths -----------------------------------------------------------
 *
 * A log device names its board by the attribute DeviceID and its protocol by CP_TYPE, and holds parameters in
 * sections. The board's file, or else the protocol's, says of a parameter where it is stored, what it may
 * hold and what stands in when it is absent. A subdevice is named device\subdevices\sub.
 */

/*
 * Enumerates the log devices that are neither hidden nor temporary: ask for index 0, 1, 2 and so on until
 * there are no more. The order is the folder's; nothing is kept from call to call.
 *
 *   lpszNetType   in      only those whose CP_TYPE is this, in any case; null for all
 *   index         in      which one, of those that pass
 *   LogDevice     out     buffer for the name
 *   LogDeviceLen  in/out  its length in characters
 *
 * PGSP_OK                      LogDevice and LogDeviceLen are set
 * PGSP_ERR_INVALID_PARAMETERS  LogDevice or LogDeviceLen is null, or the length is 0
 * PGSP_ERR_BUFFER_TOO_SHORT    a name up to this one, wanted or not, doesn't fit; the outputs are as they
 *                              were
 * PGSP_ERR_NO_MORE_ITEMS       index lies past the last one, or the folder can't be found
 */
int32_t LogDeviceGetEnumBL(const wchar_t* lpszNetType, uint32_t index, wchar_t* LogDevice,
                           uint32_t* LogDeviceLen);

/*
 * Enumerates all parameters of a log device, and at the end the attributes of its root element. Index 0
 * begins anew; a walk to the end makes the next one see a changed file.
 *
 *   LogDevice  in      the log device
 *   index      in      which one
 *   Parameter  out     buffer for the name
 *   parLen     in/out  its length in characters
 *   Value      out     buffer for the value
 *   valLen     in/out  its length in characters
 *
 * PGSP_OK                      all four are set
 * PGSP_ERR_INVALID_PARAMETERS  LogDevice is null or empty, an output is null, or a length is 0
 * PGSP_ERR_BUFFER_TOO_SHORT    a buffer is too small and its length now tells; the name goes first, so a
 *                              name that doesn't fit leaves Value and valLen as they were
 * PGSP_ERR_NO_MORE_ITEMS       index lies past the last one
 * PGSP_ERR_FILE_NOT_FOUND      there is no such log device, or its file can't be read
 */
int32_t LogDeviceGetEnumValueBL(const wchar_t* LogDevice, uint32_t index, wchar_t* Parameter,
                                uint32_t* parLen, wchar_t* Value, uint32_t* valLen);

/*
 * Enumerates the log devices of a board, with the parameter Unit of each. The answers come from an index that
 * is made anew when a log device's file was added, removed or renamed, by whatever process: a Unit that
 * changes otherwise is seen only then. Log devices without a Unit, hidden and temporary ones aren't in it.
 *
 *   DeviceID      in      the board's identity as the log devices have it, in any case, with the "*" it may
 *                         begin with
 *   index         in      which one
 *   LogDevice     out     buffer for the name
 *   LogDeviceLen  in/out  its length in characters
 *   Unit          out     buffer for the unit
 *   UnitLen       in/out  its length in characters
 *
 * PGSP_OK                      all four are set
 * PGSP_ERR_INVALID_PARAMETERS  a pointer is null
 * PGSP_ERR_BUFFER_TOO_SHORT    a buffer is too small and its length now tells; the name goes first, so a name
 *                              that doesn't fit leaves Unit and UnitLen as they were
 * PGSP_ERR_NO_MORE_ITEMS       index lies past the last one, or no log device has this identity
 */
int32_t LogDeviceGetEnumByDeviceIdBL(const wchar_t* DeviceID, uint32_t index, wchar_t* LogDevice,
                                     uint32_t* LogDeviceLen, wchar_t* Unit, uint32_t* UnitLen);

/*
 * Tells whether a log device exists and may be used, or whether a subdevice exists.
 *
 *   LogDevice  in  the log device, or device\subdevices\sub
 *   flag       in  what is asked: 0 existence, 2 writing, 4 reading, 6 both; for a subdevice it plays no part
 *
 * PGSP_OK                      it does
 * PGSP_ERR_ACCESS_DENIED       it exists, the access isn't allowed
 * PGSP_ERR_INVALID_PARAMETERS  LogDevice is null or empty, flag is another number, or the name makes no path
 * PGSP_ERR_BUFFER_TOO_SHORT    the escaped name has 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND      there is no such log device
 * PGSP_ERR_CANT_LOAD_XML_FILE  the log device of the subdevice can't be read
 * PGSP_ERR_PARAM_NOT_FOUND     the log device has no such subdevice
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 */
int32_t LogDeviceExistBL(const wchar_t* LogDevice, int32_t flag);

/*
 * Reads one value of a log device: of the section and by the name that its catalogue gives for the parameter,
 * or else of the first section that holds it; where it is absent, the catalogue's default.
 *
 *   LogDevice  in      the log device, or a subdevice of it
 *   Parameter  in      the parameter; null or "" stands for the parameter "default"
 *   Value      out     buffer for the value
 *   dwValue    in/out  its length in characters
 *
 * PGSP_OK                         Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS     LogDevice is null or empty, an output is null, or the length is 0
 * PGSP_ERR_BUFFER_TOO_SHORT       dwValue tells the value's length
 * PGSP_ERR_LOG_DEVICE_NOT_EXISTS  there is no such log device, or its file can't be read
 * PGSP_ERR_PARAM_NOT_FOUND        it has no such parameter, and there is no default
 * PGSP_ERR_FOLDER_NOT_FOUND       the data folder can't be found
 */
int32_t LogDeviceGetValueBL(const wchar_t* LogDevice, const wchar_t* Parameter, wchar_t* Value,
                            uint32_t* dwValue);

/*
 * Reads one value of a log device from a section. The catalogue isn't asked: no mapped name, no default.
 *
 *   LogDevice  in      the log device, or a subdevice of it
 *   Section    in      the section; null or "" looks into DeviceHeader, LocalSettings, NetworkSettings,
 *                      Bindings and Ndi in this order
 *   Parameter  in      the parameter; null or "" stands for the parameter "default"
 *   Value      out     buffer for the value
 *   dwValue    in/out  its length in characters
 *
 * PGSP_OK                      Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  LogDevice is null or empty, an output is null, or the length is 0
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValue tells the value's length
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such log device, or its file can't be read; Value is empty,
 *                              dwValue 0
 * PGSP_ERR_PARAM_NOT_FOUND     it has no such parameter; Value is empty, dwValue 0. Without a section also
 *                              when its value is too long and a section behind lacks it
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 */
int32_t LogDeviceGetValueExBL(const wchar_t* LogDevice, const wchar_t* Section, const wchar_t* Parameter,
                              wchar_t* Value, uint32_t* dwValue);

/*
 * Reads several values of a log device at once, or all of them. No default stands in.
 *
 *   LogDevice        in      the log device
 *   Section          in      the section; null or "" looks into five of them, as LogDeviceGetValueExBL does
 *   ParameterList    in      names one behind the other, each with its terminator; null for all parameters,
 *                            then name and value in turn
 *   paramListLength  in      its length in characters, the terminators of its names counted; 0 is like null,
 *                            a negative one is a list without names
 *   Value            out     buffer for the values in the same order, each with its terminator, and one more
 *                            behind the last
 *   dwValue          in/out  its length in characters; out, the characters written with all terminators
 *
 * PGSP_OK                      Value and dwValue are set; all of a log device that doesn't exist is an empty
 *                              list
 * PGSP_ERR_INVALID_PARAMETERS  LogDevice is null or empty, an output is null, or a named parameter can't be
 *                              read; the outputs are as they were
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValue tells the characters needed, and the buffer's first 260 characters are
 *                              as they were; or only the last terminator has no room, and dwValue tells what
 *                              was written
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 */
int32_t LogDeviceGetValueListBL(const wchar_t* LogDevice, const wchar_t* Section,
                                const wchar_t* ParameterList, int32_t paramListLength, wchar_t* Value,
                                uint32_t* dwValue);

/*
 * Sets a parameter of a log device, once its value has been checked against the catalogue. A parameter that
 * the catalogue doesn't know takes any value. The words "min", "max" and "default", in any case, stand for
 * the catalogue's values of an "int" parameter, and those are stored.
 *
 *   LogDevice  in  the log device, or a subdevice of it
 *   Parameter  in  the parameter; null or "" stands for the parameter "default"
 *   Value      in  the value
 *
 * PGSP_OK                          set, or it had this value already
 * PGSP_ERR_INVALID_PARAMETERS      LogDevice is null or empty, Value is null, or it is malformed for its type
 * PGSP_ERR_BUFFER_TOO_SHORT        the path has 260 characters or more
 * PGSP_NOT_IN_LIST                 a baudrate or l4_timeout that isn't one of those allowed
 * PGSP_NOT_A_BOOL                  neither "true" nor "false"
 * PGSP_SET_VAL_LESS_THAN_MIN       under the minimum
 * PGSP_SET_VAL_BIGGER_THAN_MAX     over the maximum
 * PGSP_NOT_IN_STEP                 off the step
 * PGSP_ERR_CANT_SET_VALUE          DeviceID and CP_TYPE are never set; or the section isn't there
 * PGSP_ERR_FILE_NOT_FOUND          there is no such log device
 * PGSP_ERR_CANT_LOAD_XML_FILE      its file is malformed or over 10,000,000 bytes
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  there is no document engine; for a subdevice: COM isn't initialised
 *
 * A refused value leaves the file as it is. Notifies "LogDevices", the log device, for a subdevice the one
 * that it belongs to, when the value is another than before.
 */
int32_t LogDeviceSetValueBL(const wchar_t* LogDevice, const wchar_t* Parameter, const wchar_t* Value);

/*
 * Removes a parameter of a log device from the section that the catalogue gives for it, and without one from
 * SpareSection. The result is validated before it takes the file's place.
 *
 *   LogDevice  in  the log device
 *   Parameter  in  the parameter
 *
 * Results as LogNameDelValueBL. Notifies "LogDevices", the log device, when it was removed.
 */
int32_t LogDeviceDelValueBL(const wchar_t* LogDevice, const wchar_t* Parameter);

/* Log devices: how they are made, copied and removed ------------------------------------------------- */

/*
 * Makes a log device from a template, which it is byte for byte afterwards. Makes the folder of log devices
 * where it isn't there yet. A template may make log devices that are hidden or can't be removed.
 *
 *   DefLogDeviceName  in  the template; "Automation-OnlineAccess-LDT-" is put in front of a name without it
 *   LogDeviceName     in  the new log device
 *
 * PGSP_OK                      made
 * PGSP_ERR_INVALID_PARAMETERS  an argument is null or empty
 * PGSP_ERR_BUFFER_TOO_SHORT    the new log device's path has 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND      there is no such template
 * PGSP_ERR_CANT_COPY_FILE      there is such a log device, which is left as it is, or the file can't be made
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found; without a data folder the path is relative
 *
 * Notifies "LogDevices", the new log device.
 */
int32_t LogDeviceCreateFromDefBL(const wchar_t* DefLogDeviceName, const wchar_t* LogDeviceName);

/*
 * Copies a log device, and sets "enable_delete" to "true" and "hidden" to "false" in the copy's section Ndi:
 * so it is visible and can be removed, whatever the original is. That holds where the original has these as
 * truth values or not at all; a text of that name stands ahead of them and goes on to count.
 *
 *   CopyFromLogDevice  in  the log device
 *   CopyToLogDevice    in  the new log device
 *
 * PGSP_OK                      copied; that "enable_delete" or "hidden" couldn't be set isn't told, unless
 *                              memory ran out for it, and then there is no copy, though the first of the two
 *                              may have been announced
 * PGSP_ERR_INVALID_PARAMETERS  an argument is null or empty
 * PGSP_ERR_BUFFER_TOO_SHORT    a path has 260 characters or more
 * PGSP_ERR_CANT_COPY_FILE      there is no such log device, there is one of the new name, which is left as it
 *                              is, or the file can't be made
 *
 * Without a data folder the paths are relative. Notifies "LogDevices", the new log device: for each of the
 * two values that is another than the original's, then for the copy itself.
 */
int32_t LogDeviceCopyBL(const wchar_t* CopyFromLogDevice, const wchar_t* CopyToLogDevice);

/*
 * Removes a log device with its subdevices, if its parameter "enable_delete" allows it. Log names that are
 * linked to it keep their link.
 *
 *   LogDevice       in  the log device, not a subdevice; one whose name holds PGSP_TEMP_LOG_DEVICE needs no
 *                       permission
 *   AllowStdDelete  in  0 asks "enable_delete" of the section Ndi; any other number goes without asking
 *
 * PGSP_OK                            removed
 * PGSP_ERR_INVALID_PARAMETERS        LogDevice is null or empty
 * PGSP_ERR_BUFFER_TOO_SHORT          the path has 260 characters or more
 * PGSP_ERR_LOG_DEVICE_NOT_DELETABLE  "enable_delete" is something else than "true", in any case
 * PGSP_ERR_CANT_LOAD_XML_FILE        there is no such log device to be asked, or its file can't be read
 * PGSP_ERR_PARAM_NOT_FOUND           it doesn't say whether it may be removed
 * PGSP_ERR_FOLDER_NOT_FOUND          the data folder can't be found, and the permission is needed
 * PGSP_ERR_CANT_DELETE_FILE          there is no such log device, or its file is in use or protected
 *
 * Without a data folder the path is relative, where no permission is needed. Notifies "LogDevices", the log
 * device, when it was removed.
 */
int32_t LogDeviceDelBL(const wchar_t* LogDevice, int32_t AllowStdDelete);

/* Temporary log devices: a copy to work on ------------------------------------------------------------
 *
 * A log device can be changed aside: make a temporary copy, change that by name like any other, and put it in
 * the place of the original or remove it. There are 255, PGSP_TEMP_LOG_DEVICE____000 to ...254, for all
 * processes together. Whoever has the name may use it; one that nobody removes keeps its number. Enumerations
 * leave them out, the lists of files don't. None of these functions notifies anybody, and neither do changes
 * to a temporary log device.
 */

/*
 * Makes a temporary copy of a log device under the first number that is free.
 *
 *   LogDevice        in      the log device
 *   TempLogDevice    out     buffer for the copy's name, which has 27 characters
 *   dwTempLogDevice  in/out  its length in characters
 *
 * PGSP_OK                           TempLogDevice and dwTempLogDevice are set
 * PGSP_ERR_INVALID_PARAMETERS       LogDevice is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT         dwTempLogDevice tells the name's length; the copy has been made all the
 *                                   same and keeps its number, so offer 28 characters at once
 * PGSP_CANT_CREATE_TEMP_LOG_DEVICE  there is no such log device, no number is free, or no file can be made:
 *                                   the path may be too long
 *
 * Without a data folder the paths are relative.
 */
int32_t LogDeviceCreateTempBL(const wchar_t* LogDevice, wchar_t* TempLogDevice, uint32_t* dwTempLogDevice);

/*
 * Makes a temporary log device from a template, under the first number that is free. Its parameter
 * "DefLogDevice" in the section Ndi holds the template's name as given. Makes the folder of log devices where
 * it isn't there yet.
 *
 *   DefLogDeviceName  in      the template; "Automation-OnlineAccess-LDT-" is put in front of a name without
 *                             it
 *   TempLogDevice     out     buffer for the name
 *   dwTempLogDevice   in/out  its length in characters
 *
 * Results as LogDeviceCreateTempBL, of the template; that "DefLogDevice" couldn't be set isn't told, unless
 * memory ran out for it, and then there is no such log device. And
 * PGSP_ERR_FOLDER_NOT_FOUND         the data folder or the program folder can't be found
 */
int32_t LogDeviceCreateTempFromDefBL(const wchar_t* DefLogDeviceName, wchar_t* TempLogDevice,
                                     uint32_t* dwTempLogDevice);

/*
 * Puts a temporary log device in the place of a log device: removes that, copies, removes the temporary one.
 * Any log device can so take the place of any other; of one that is to take its own place nothing is left.
 *
 *   TempLogDevice  in  the temporary log device
 *   LogDevice      in  the log device
 *
 * PGSP_OK                      LogDevice is now what TempLogDevice was, which is gone
 * PGSP_ERR_INVALID_PARAMETERS  an argument is null
 * PGSP_ERR_BUFFER_TOO_SHORT    LogDevice's path has 260 characters or more, and nothing has changed; or
 *                              TempLogDevice's, and LogDevice is gone
 * PGSP_ERR_FILE_NOT_FOUND      LogDevice can't be removed, be it that there is none; nothing has changed
 * PGSP_ERR_CANT_COPY_FILE      TempLogDevice can't be copied: LogDevice is gone, TempLogDevice, if there was
 *                              one, is all that is left
 * PGSP_ERR_CANT_DELETE_FILE    LogDevice is now what TempLogDevice is, but that is still there
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 */
int32_t LogDeviceUpdateWithTempBL(const wchar_t* TempLogDevice, const wchar_t* LogDevice);

/*
 * Removes a temporary log device.
 *
 *   TempLogDevice  in  a name with PGSP_TEMP_LOG_DEVICE in it, in this case
 *
 * PGSP_OK                      removed
 * PGSP_ERR_INVALID_PARAMETERS  TempLogDevice is null or empty, or isn't such a name
 * PGSP_ERR_BUFFER_TOO_SHORT    the path has 260 characters or more
 * PGSP_ERR_CANT_DELETE_FILE    there is no such log device, or its file is in use or protected
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 */
int32_t LogDeviceDelTempBL(const wchar_t* TempLogDevice);

/*
 * Removes a log device that stands for a VMD identity. Such log devices are known by their names alone;
 * nobody is asked whether it may be removed.
 *
 *   LogDevice  in  a name with *_/VMDID or PC internal in it, in this case
 *
 * PGSP_OK                      removed
 * PGSP_ERR_INVALID_PARAMETERS  LogDevice is null or empty, or isn't such a name
 * PGSP_ERR_BUFFER_TOO_SHORT    the path has 260 characters or more
 * PGSP_ERR_CANT_DELETE_FILE    there is no such log device, or its file is in use or protected
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 *
 * Notifies nobody.
 */
int32_t LogDeviceDelVmdIdBL(const wchar_t* LogDevice);

/* Choices: what follows from a parameter's value, and which values there are to choose from ------------
 *
 * For the values of two parameters, "busparam" (the bus profile) and "baudrate", a protocol holds the values
 * that other parameters get with them. Applying a profile writes these to a log device, each checked and
 * announced as LogDeviceSetValueBL does it. That isn't one transaction: what was written ahead of a failure
 * stays. Names of parameters are compared without regard to case.
 */

/*
 * Changes the transmission speed of a log device, and what follows from it. For a CP_TYPE of exactly "L2" the
 * speed is stored as it is, unchecked, and the bus profile that the log device has is applied again, unless
 * that is "3", the user's own. For all others the speed is set as a value of "baudrate" and the profile that
 * belongs to it is applied; a log device of "MPI" then gets a "ttr" of 8 more than its "highest_adr", if that
 * can be set.
 *
 *   LogDevice  in  the log device
 *   Value      in  the speed, as a value of "baudrate"
 *
 * PGSP_OK                               changed, with all that follows
 * PGSP_ERR_INVALID_PARAMETERS           LogDevice or Value is null or empty; for "L2" also for a speed that
 *                                       isn't a number
 * PGSP_PROFILE_NO_VALUE                 the speed was refused, or no profile belongs to it, or not all of its
 *                                       values could be written; also without a program folder, and on a
 *                                       thread without COM
 * PGSP_ERR_PARAM_NOT_FOUND              the log device has no "baudrate", for "L2" no "busparam", or that has
 *                                       256 characters or more; also without a data folder
 * PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND  there is no such log device, or it has no CP_TYPE
 * PGSP_ERR_CANT_CREATE_XML_ENGINE, PGSP_ERR_CANT_LOAD_XML_FILE, PGSP_ERR_CANT_SET_VALUE
 *                                       for "L2": as LogDeviceSetValueBL
 * PGSP_ERR_FOLDER_NOT_FOUND             the data folder can't be found any more
 *
 * After a failure the speed is the old one again, if the catalogue still allows it; an "L2" that had none is
 * left with an empty one, and when memory runs out for the "ttr" of an "MPI", all else has been changed.
 * Notifies "LogDevices", the log device, for each value that has changed, but not for the speed of an "L2".
 * Needs COM on the calling thread, but for an "L2" with the user's own profile.
 */
int32_t LogDeviceSetBusparamsBL(const wchar_t* LogDevice, const wchar_t* Value);

/*
 * Applies the profile that a parameter's present value selects to a log device. For "baudrate", and for the
 * value "3" of "busparam", these are the values that the protocol has for it. For another value of "busparam"
 * the protocol has further parameters below it: the first of them whose value in the log device has any
 * values, gives them, and none behind it is looked at; one whose value in the log device the protocol doesn't
 * know ends the call.
 *
 *   LogDevice  in  the log device
 *   Profile    in  the protocol, by its CP_TYPE or its file's name
 *   Parameter  in  "baudrate" or "busparam"
 *
 * PGSP_OK                      all values were written
 * PGSP_ERR_INVALID_PARAMETERS  an argument is null
 * PGSP_PROFILE_NO_VALUE        the log device has no such parameter, the protocol has nothing for its value,
 *                              or a value couldn't be written; those that could stay. Also for every other
 *                              parameter, and on a thread without COM
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 *
 * Notifies "LogDevices", the log device, for each value that has changed.
 */
int32_t PGSP_LogDeviceSetProfileRBL(const wchar_t* LogDevice, const wchar_t* Profile,
                                    const wchar_t* Parameter);

/*
 * Tells whether a protocol lists a value of a parameter, whether or not anything follows from it; or whether
 * it has a section for a value of a parameter below that value. Case doesn't count, and of what is listed
 * only what stands ahead of a "/".
 *
 *   Protocol   in  the protocol
 *   Parameter  in  the parameter; or parameter\value\subparameter for a parameter below a value, cut at its
 *                  first two backslashes. With one backslash the value is empty, and the subparameter is
 *                  looked for anywhere below the parameter
 *   Value      in  the value, of the subparameter if there is one
 *
 * PGSP_OK                      it has
 * PGSP_ERR_INVALID_PARAMETERS  an argument is null or empty
 * PGSP_ERR_PARAM_NOT_FOUND     it hasn't; below a value also when there is no such protocol
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such protocol
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_ProfileCollectionExistsBL(const wchar_t* Protocol, const wchar_t* Parameter,
                                       const wchar_t* Value);

/*
 * Reads the description of a parameter's value from a protocol.
 *
 *   Profile      in      the protocol
 *   ParamValue   in      parameter\value, cut at its first backslash; without one the first description
 *                        anywhere below what has this name
 *   ParamDesc    out     buffer for the description; may be null to ask for its length, with a length of 0
 *   dwParamDesc  in/out  its length in characters
 *
 * PGSP_OK                      both are set; but nothing is for a null buffer that is said to have room
 * PGSP_ERR_INVALID_PARAMETERS  Profile or ParamValue is null or empty, or dwParamDesc is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwParamDesc tells the description's length
 * PGSP_ERR_PARAM_NOT_FOUND     there is none, or no such protocol
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_GetParamDescBL(const wchar_t* Profile, const wchar_t* ParamValue, wchar_t* ParamDesc,
                            uint32_t* dwParamDesc);

/*
 * Reads the values that a log device may offer for a parameter: those of its board if the board lists any,
 * and otherwise those of its protocol. For a CP_TYPE with "L2" in it the baud rates are those of the bus
 * profile that the log device has.
 *
 *   LogDevice  in      the log device
 *   Parameter  in      the parameter
 *   Values     out     buffer for the values, each with its terminator, and one more behind the last. THE
 *                      BUFFER HOLDS ONE CHARACTER MORE THAN dwValues SAYS: that last terminator is neither
 *                      asked for nor told
 *   dwValues   in/out  its length in characters without that one; out, the characters written without it
 *
 * PGSP_OK                      both are set; a parameter that neither of the two knows has no values
 * PGSP_ERR_INVALID_PARAMETERS  LogDevice or Parameter is null or empty, an output is null, or the length is 0
 * PGSP_ERR_BUFFER_TOO_SHORT    the values that fit are there, without the closing terminator, and dwValues
 *                              tells the characters written; how many are needed is not told
 * PGSP_ERR_PARAM_NOT_FOUND     there is no such log device or no data folder, or it has no DeviceID, or where
 *                              the protocol is asked no CP_TYPE, or no "busparam" for an "L2"
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_LogDeviceGetMostSpecializedEnumListBL(const wchar_t* LogDevice, const wchar_t* Parameter,
                                                   wchar_t* Values, uint32_t* dwValues);

/*
 * Reads the values of a parameter that the board and the protocol of a log device both list, in the board's
 * order; when only one of the two lists any, those. What stands behind a "/" isn't compared; case is.
 *
 *   LogDevice  in      the log device
 *   Parameter  in      the parameter
 *   Values     out     buffer for the values as the board has them, each with its terminator, and one more
 *                      behind the last
 *   dwValues   in/out  its length in characters; out, the characters written without the last terminator
 *
 * PGSP_OK                      both are set; two lists that have nothing in common make an empty one
 * PGSP_ERR_INVALID_PARAMETERS  LogDevice or Parameter is null or empty, an output is null, or the length is 0
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValues tells the characters needed, and the buffer's first 260 characters
 *                              are as they were; or only the last terminator has no room, and dwValues tells
 *                              what was written
 * PGSP_ERR_PARAM_NOT_FOUND     neither of the two lists any; or there is no such log device or no data
 *                              folder, or it has no DeviceID, no CP_TYPE, or no "busparam" for an "L2"
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_LogDeviceGetAverageEnumListBL(const wchar_t* LogDevice, const wchar_t* Parameter,
                                           wchar_t* Values, uint32_t* dwValues);

/* What the catalogue says of a log device -------------------------------------------------------------- */

/*
 * Reads which ASIC the board of a log device carries: the board's value "Asic_Type".
 *
 *   LogDevice   in      the log device
 *   AsicType    out     buffer for the ASIC's name
 *   dwAsicType  in/out  its length in characters
 *
 * PGSP_OK                      both are set
 * PGSP_ERR_INVALID_PARAMETERS  LogDevice is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwAsicType tells the name's length, if that stands in the last place where it
 *                              is looked for; see PGSP_BoardGetValueBL
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such log device or no such board
 * PGSP_ERR_PARAM_NOT_FOUND     the log device has no DeviceID, or the board doesn't say
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder or the program folder can't be found
 */
int32_t LogDeviceGetAsicTypeBL(const wchar_t* LogDevice, wchar_t* AsicType, uint32_t* dwAsicType);

/*
 * Reads a word that the catalogue has for a parameter of a log device: the board's, or else the protocol's.
 *
 *   LogDevice  in      the log device
 *   Parameter  in      the parameter; or parameter\value for the description of that value, which only the
 *                      protocol has
 *   ParamDesc  in      the word, such as "type", "min" or "default"; for a value it plays no part, but has to
 *                      be there
 *   Value      out     buffer for the word's text
 *   dwValue    in/out  its length in characters
 *
 * PGSP_OK                               Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS           a name is null or empty, an output is null, or the length is 0
 * PGSP_ERR_BUFFER_TOO_SHORT             dwValue tells the length of the protocol's text. A text of the
 *                                       board's that doesn't fit is passed over. Also, with dwValue as it
 *                                       was, for a name whose escaped form has 260 characters or more
 * PGSP_ERR_ACCESS_DENIED                the log device can't be read for lack of rights
 * PGSP_ERR_LOG_DEVICE_NOT_EXISTS        there is no such log device
 * PGSP_ERR_PARAM_DESC_NOT_FOUND         neither the board nor the protocol has it
 * PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND  the board doesn't have it, and the log device has no CP_TYPE
 * PGSP_ERR_CANT_LOAD_XML_FILE           the board doesn't have it, and there is no such protocol; for a
 *                                       value that is PGSP_ERR_PARAM_DESC_NOT_FOUND. Also for a subdevice of
 *                                       a log device that can't be read
 * PGSP_ERR_PARAM_NOT_FOUND              the log device has no such subdevice
 * PGSP_ERR_FOLDER_NOT_FOUND             the data folder or the program folder can't be found
 *
 * Words are answered as PGSP_TemplateGetConstraintBL answers them.
 */
int32_t LogDeviceGetParamDescBL(const wchar_t* LogDevice, const wchar_t* Parameter, const wchar_t* ParamDesc,
                                wchar_t* Value, uint32_t* dwValue);

/*
 * Hands out a stored file in pieces of the caller's size, for callers who can't read it themselves. At index
 * 0 the file is read whole; that index and those behind it are then answered from a copy of the library's
 * own, which goes with the last piece. What stands between a ">" and the next character that isn't a blank, a
 * tab or a line end is left out, and a zero byte follows the last character; it counts.
 *
 *   clientId   in      whose transfer this is, of the caller's choice. Two transfers of one file need two ids
 *   kind       in      which file: 1 a log name, 2 a log device, 3 a board, 4 a template, 5 a protocol; any
 *                      other number is a log device
 *   name       in      its name, with or without the prefix of its kind; a "*" at its start is dropped
 *   index      in      which piece, from 0
 *   buffer     out     buffer for the piece
 *   bufferLen  in/out  in: the length of a piece, the same at each index. Out: how much of buffer is set. In
 *                      bytes, not in characters
 *
 * PGSP_OK                      the last piece
 * PGSP_ERR_BUFFER_TOO_SHORT    a whole piece, and more is to come: ask for the next index. Also, with nothing
 *                              set, for a name whose escaped form has 260 characters or more
 * PGSP_ERR_NO_MORE_ITEMS       nothing is set: at index 0 there is no such file, or it can't be read; else no
 *                              transfer is under way, or it has no such piece, and is over
 * PGSP_ERR_INVALID_PARAMETERS  name, buffer or bufferLen is null, or the name is empty or "*" alone
 *
 * A reader who stops half way leaves the copy behind until the same client asks for index 0 of the same file,
 * or until the library is unloaded.
 */
int32_t LogDeviceGetXmlBL(uint32_t clientId, uint16_t kind, const wchar_t* name, uint32_t index,
                          uint8_t* buffer, uint32_t* bufferLen);

/*
 * Reads a log device as its driver is to receive it: the file is loaded and checked by its schema, and the
 * parameters of the sections that its Load element names are written as records, in the order of Load. Needs
 * COM on the calling thread.
 *
 *   LogDevice  in   the log device; as a whole, so that neither a "*" nor a backslash in it means anything
 *   outBuffer  out  the records; to be released by the caller with GlobalFree
 *   outLength  out  their length in bytes; 0 when the sections named have no parameters
 *
 * The records follow each other without a header or an end. Numbers are little-endian, texts UTF-16 without a
 * terminator:
 *
 *   0      2  length of the whole record in bytes
 *   2      1  length n of the name in bytes
 *   3      n  name; that of a subdevice's parameter is subdevice/name
 *   3 + n  1  1
 *   4 + n  1  type: 0 boolean, 1 integer, 2 string
 *   5 + n  1  length m of the value in bytes: 4 but for a string
 *   6 + n  m  value: a boolean is 0 or 1 in 32 bits, an integer is signed and has 32 bits
 *
 * Texts are cut at 260 characters, and of their lengths only the lowest 8 bits are told and that many bytes
 * written: a text of 128 characters arrives empty, one of 130 as its first two characters.
 *
 * PGSP_OK                          outBuffer and outLength are set
 * PGSP_ERR_INVALID_PARAMETERS      LogDevice is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT        the escaped name has 260 characters or more
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  no XML engine, as on a thread without COM
 * PGSP_ERR_INVALID_FILE            the file doesn't fit its schema
 * PGSP_ERR_CANT_LOAD_XML_FILE      there is no such log device, or its file can't be loaded
 * PGSP_ERR_CANT_LOAD_SCHEMA        the schema can't be loaded; looked at ahead of the file
 * PGSP_ERR_DRIVER_READ             the file names nothing to load
 * PGSP_ERR_FOLDER_NOT_FOUND        the data folder or the program folder can't be found
 * PGSP_ERR_DRIVER_BUFFER           there is no memory for the records
 * PGSP_ERR_DRIVER_NO_MEMORY        there is no more memory for the records
 *
 * After a failure the outputs are as they were.
 */
int32_t norvDriverReadLogDevice(const wchar_t* LogDevice, uint8_t** outBuffer, uint32_t* outLength);

/* Network device identity: what tools show of a log device -------------------------------------------
 *
 * The section Ndi of a log device holds plain parameters; its section UserInterface, or for 64-bit processes
 * UserInterface64, links to texts and pages in libraries. These functions show both as one list of named
 * values. The value of a link is the library's file, a comma, and the number of a text or the name of a
 * function. `flag` chooses the section of links: 0 UserInterface64, any other number UserInterface. Names
 * are compared without regard to case.
 */

/*
 * Enumerates the parameters of the section Ndi, those of the section of links, and the links to pages: ask
 * for index 0, 1, 2 and so on. Links to texts aren't among them, and a link without a library has an empty
 * value.
 *
 *   LogDevice  in      the log device
 *   index      in      which one
 *   Parameter  out     buffer for the name
 *   parLen     in/out  its length in characters
 *   Value      out     buffer for the value
 *   valLen     in/out  its length in characters
 *   flag       in      the section of links
 *
 * PGSP_OK                          all four are set
 * PGSP_ERR_INVALID_PARAMETERS      LogDevice is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT        a buffer is too small and its length now tells; the name goes first, so a
 *                                  name that doesn't fit leaves Value and valLen as they were; also for a
 *                                  path of 260 characters or more
 * PGSP_ERR_NO_MORE_ITEMS           index lies past the last one
 * PGSP_ERR_FILE_NOT_FOUND          there is no such log device
 * PGSP_ERR_CANT_LOAD_XML_FILE      its file is malformed or over 10,000,000 bytes
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  COM isn't initialised on this thread
 * PGSP_ERR_FOLDER_NOT_FOUND        the data folder can't be found
 */
int32_t PGSP_LogDeviceEnumNdiValueBL(const wchar_t* LogDevice, uint32_t index, wchar_t* Parameter,
                                     uint32_t* parLen, wchar_t* Value, uint32_t* valLen, int32_t flag);

/*
 * Reads one of these values: a parameter of the section Ndi, or else a link to a page, or else the text
 * itself that a link of this name leads to, in the user's language. Links to pages are found only for a log
 * device whose name is also its file's name; and the search for them runs on behind their section, so that
 * with a flag other than 0 a link to a text in a section UserInterface64 further down may answer as
 * "library,number".
 *
 *   LogDevice  in      the log device
 *   Parameter  in      the parameter
 *   Value      out     buffer for the value; a link with neither library nor function is empty
 *   dwValue    in/out  its length in characters
 *   flag       in      the section of links
 *
 * PGSP_OK                      Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  LogDevice or Parameter is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValue tells the length of a link or a text. A parameter of the section Ndi
 *                              that doesn't fit is passed over instead, and what comes behind it answers.
 *                              Also, with dwValue as it was, for an escaped path of 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND      there is no such log device, or its file can't be read
 * PGSP_ERR_PARAM_NOT_FOUND     it has no such value, or its file isn't well-formed up to it
 * PGSP_ERR_CANT_LOAD_DLL, PGSP_ERR_CANT_LOAD_RESOURCE
 *                              as PGSP_LogDeviceGetResourceStringBL
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder, or for a text the program folder, can't be found
 */
int32_t PGSP_LogDeviceGetNdiBL(const wchar_t* LogDevice, const wchar_t* Parameter, wchar_t* Value,
                               uint32_t* dwValue, int32_t flag);

/*
 * Sets one of these values. The parameter's name decides where it goes.
 *
 *   LogDevice  in  the log device
 *   Parameter  in  "DescDefault", "DescText": a link to a text, "library,number"; "number" alone leaves the
 *                  library of a link that is there. "PropSheet", "Diagnosis": a link to a page when Value
 *                  holds a comma, "library,function". All else is a parameter of the section Ndi, of the type
 *                  that the catalogue gives, or else "bool" for the values "true" and "false" and "string"
 *                  for all others. Names of links and of strings hold no blank and none of
 *                  []^!"$%&()=?'#+><*|;,  or the section sign or the acute accent
 *   Value      in  the value; links and strings without < and >. A link is split at its first comma; one with
 *                  an empty part can't be read back
 *   flag       in  the section of links, which is made where it isn't there
 *
 * PGSP_OK                          set, or set already: a value that differs in case alone is the same
 * PGSP_ERR_INVALID_PARAMETERS      LogDevice or Parameter is null or empty, Value is null, a character isn't
 *                                  allowed, or the value is malformed for its type
 * PGSP_ERR_BUFFER_TOO_SHORT        the path has 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND          there is no such log device
 * PGSP_ERR_CANT_LOAD_XML_FILE      its file is malformed or over 10,000,000 bytes
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  the document engine can't be created; for a link also on a thread without
 *                                  COM
 * PGSP_ERR_CANT_SET_VALUE          its file has no section Ndi, or XML can't hold the name, the value, or the
 *                                  catalogue's type as an element
 * PGSP_ERR_FOLDER_NOT_FOUND        the data folder can't be found
 *
 * Notifies "LogDevices", the log device, when the value has changed. Libraries are looked for below the
 * program folder's "bin".
 */
int32_t PGSP_LogDeviceSetNdiBL(const wchar_t* LogDevice, const wchar_t* Parameter, const wchar_t* Value,
                               int32_t flag);

/*
 * Removes one of these values: a parameter of the section Ndi, or else a link to a page, or else a parameter
 * of the section of links. Links to texts stay. The result is validated before it takes the file's place.
 *
 *   LogDevice  in  the log device
 *   Parameter  in  the parameter
 *   flag       in  the section of links
 *
 * PGSP_OK                          removed
 * PGSP_ERR_INVALID_PARAMETERS      LogDevice or Parameter is null or empty
 * PGSP_ERR_BUFFER_TOO_SHORT        the path has 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND          there is no such log device
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  COM isn't initialised on this thread
 * PGSP_ERR_INVALID_FILE            the schema doesn't allow it; the log device is as it was
 * PGSP_ERR_CANT_LOAD_XML_FILE      its file is malformed or over 10,000,000 bytes
 * PGSP_ERR_CANT_LOAD_SCHEMA        the schema is missing or malformed; the log device is as it was
 * PGSP_ERR_CANT_DELETE_FILE        its file is in use or protected and stays; the new form stays beside it
 * PGSP_ERR_PARAM_NOT_FOUND         it has no such value that can be removed
 * PGSP_ERR_FOLDER_NOT_FOUND        the data folder or the program folder can't be found
 *
 * Notifies "LogDevices", the log device, when it was removed.
 */
int32_t PGSP_LogDeviceDelNdiBL(const wchar_t* LogDevice, const wchar_t* Parameter, int32_t flag);

/* Boards: what the catalogue says of communication boards -------------------------------------------
 *
 * A board is named by the DeviceID of a log device, with or without a leading "*", by its bare name, or by
 * its file's name, which begins with "Automation-OnlineAccess-BT-".
 */

/*
 * Enumerates what a board's file holds: ask for index 0, 1, 2 and so on until the result isn't PGSP_OK.
 *
 *   Board      in      the board, for all its parameters and then the attributes of its root element;
 *                      board\ConstraintsWithDefault for the parameters that have a default, with it;
 *                      board\section for the words of one parameter's section
 *   index      in      which one
 *   Parameter  out     buffer for the name
 *   parLen     in/out  its length in characters
 *   Value      out     buffer for the value
 *   valLen     in/out  its length in characters
 *
 * PGSP_OK                      all four are set
 * PGSP_ERR_INVALID_PARAMETERS  Board is null or empty, an output is null, or, without a section, a length 0
 * PGSP_ERR_BUFFER_TOO_SHORT    a buffer is too small and its length now tells; the name goes first, so a
 *                              name that doesn't fit leaves Value and valLen as they were
 * PGSP_ERR_NO_MORE_ITEMS       index lies past the last one. Without a section the file is read anew then
 * PGSP_ERR_FILE_NOT_FOUND      there is no such board (without a section)
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such board (with one)
 * PGSP_ERR_PARAM_NOT_FOUND     the board has no such section, or no constraints
 * -1                           parLen or valLen is null (with a section)
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_BoardGetEnumValueBL(const wchar_t* Board, uint32_t index, wchar_t* Parameter, uint32_t* parLen,
                                 wchar_t* Value, uint32_t* valLen);

/*
 * Reads one value of a board: an attribute of its root element, or else a parameter of its section "Install",
 * or else of "BoardAttributes". A place whose value doesn't fit the buffer is passed over like one without.
 *
 *   DeviceID   in      the board
 *   Parameter  in      the parameter; null or "" stands for "(default)"
 *   Value      out     buffer for the value
 *   dwValue    in/out  its length in characters
 *
 * PGSP_OK                      Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  DeviceID is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    the value of the last place doesn't fit; dwValue tells its length
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such board
 * PGSP_ERR_PARAM_NOT_FOUND     the board has no such value
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_BoardGetValueBL(const wchar_t* DeviceID, const wchar_t* Parameter, wchar_t* Value,
                             uint32_t* dwValue);

/*
 * Reads one value of a board from a place that the caller names.
 *
 *   DeviceID       in      the board
 *   ParameterPath  in      a section, or section\parameter for a word of that parameter's constraints;
 *                          null or "" reads as PGSP_BoardGetValueBL does
 *   Parameter      in      the parameter, or the word; null or "" stands for "(default)"
 *   Value          out     buffer for the value
 *   dwValue        in/out  its length in characters
 *
 * Results as PGSP_BoardGetValueBL.
 */
int32_t PGSP_BoardGetValueRawBL(const wchar_t* DeviceID, const wchar_t* ParameterPath,
                                const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue);

/*
 * Reads several values of a board at once: all of them, or none.
 *
 *   DeviceID  in      the board
 *   Names     in      names one behind the other, each with its terminator. "DeviceID" and "CP_TYPE" are
 *                     attributes of the root element, all others are looked for in "Install", then in
 *                     "BoardAttributes"
 *   NamesLen  in      length of Names in characters, the terminators of its names counted; one more counts
 *                     as a last, empty name
 *   Values    out     buffer for the values in the same order, each with its terminator, and one more behind
 *                     the last
 *   dwValues  in/out  its length in characters; out, the characters written with all terminators
 *
 * PGSP_OK                      Values and dwValues are set. When the buffer has room for all but the last
 *                              terminator, that one is missing and not counted
 * PGSP_ERR_INVALID_PARAMETERS  DeviceID is null or empty, another pointer is null, or a name has no value;
 *                              the outputs are as they were
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValues tells the characters needed; the buffer's first 260 characters are as
 *                              they were
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_BoardGetValueListBL(const wchar_t* DeviceID, const wchar_t* Names, uint32_t NamesLen,
                                 wchar_t* Values, uint32_t* dwValues);

/*
 * Reads a list of values of a board. A list that isn't there is an empty one.
 *
 *   Collection  in      the list's path, such as "Constraints\baudrate"
 *   DeviceID    in      the board
 *   Values      out     buffer of at least 260 characters for the values, each with its terminator, and one
 *                       more behind the last
 *   dwValues    in/out  its length in characters; out, the characters written with all terminators
 *
 * PGSP_OK                      Values and dwValues are set
 * PGSP_ERR_INVALID_PARAMETERS  DeviceID is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValues tells the characters needed. The first 260 characters of the buffer
 *                              are cleared, whatever dwValues said
 * PGSP_ERR_NO_MORE_ITEMS       all values are there, but not the terminator behind the last, for which there
 *                              is no room; an empty list reads PGSP_ERR_PARAM_NOT_FOUND then, and one of a
 *                              board that isn't there PGSP_ERR_CANT_LOAD_XML_FILE
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_BoardGetValueCollectionBL(const wchar_t* Collection, const wchar_t* DeviceID, wchar_t* Values,
                                       uint32_t* dwValues);

/*
 * Reads the list "NotSupported" of a board; in all else PGSP_BoardGetValueCollectionBL.
 */
int32_t PGSP_BoardGetNotSupportedBL(const wchar_t* DeviceID, wchar_t* Values, uint32_t* dwValues);

/* Protocols: what the catalogue says of protocols ----------------------------------------------------
 *
 * A protocol is named by the CP_TYPE of a log device or by its file's name, which begins with
 * "Automation-OnlineAccess-PT-". A bus profile is a value of the parameter "busparam": "0", "1", "2" or "3",
 * and where it is said also "DP", "Std", "Uni" or "User" in any case.
 */

/*
 * Enumerates what a protocol's file says: ask for index 0, 1, 2 and so on until the result isn't PGSP_OK. The
 * arguments that are given, neither null nor empty, choose what is enumerated.
 *
 *   Protocol   in      the protocol
 *   Parameter  in      not given: all parameters with their defaults; nothing below is looked at
 *   Profile    in      not given: the constraint words of Parameter. Given: a value of it, a bus profile also
 *                      by its word, and what is enumerated are the values that it gives to other parameters
 *   SubParam   in      with SubValue: a parameter below that value
 *   SubValue   in      a value of SubParam; when one of the two is not given, both are not looked at
 *   index      in      which one
 *   Name       out     buffer for the name
 *   parLen     in/out  its length in characters
 *   Value      out     buffer for the value
 *   valLen     in/out  its length in characters
 *
 * PGSP_OK                          all four are set
 * PGSP_ERR_INVALID_PARAMETERS      Protocol is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT        a buffer is too small and its length now tells; the name goes first
 * PGSP_ERR_NO_MORE_ITEMS           index lies past the last one, or there is no such profile
 * PGSP_ERR_FILE_NOT_FOUND          there is no such protocol (for a profile)
 * PGSP_ERR_CANT_LOAD_XML_FILE      there is no such protocol, or its file is malformed
 * PGSP_ERR_PARAM_NOT_FOUND         the protocol has no such parameter
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  COM isn't initialised on this thread (for a profile)
 * PGSP_ERR_FOLDER_NOT_FOUND        the program folder can't be found
 */
int32_t PGSP_ProtocolGetEnumValueBL(const wchar_t* Protocol, const wchar_t* Parameter, const wchar_t* Profile,
                                    const wchar_t* SubParam, const wchar_t* SubValue, uint32_t index,
                                    wchar_t* Name, uint32_t* parLen, wchar_t* Value, uint32_t* valLen);

/*
 * Enumerates the bus profiles of a protocol.
 *
 *   ProtocolFile   in      the protocol
 *   index          in      which one
 *   Busprofile     out     buffer for the profile's text
 *   BusprofileLen  in/out  its length in characters
 *
 * PGSP_OK                      both are set
 * PGSP_ERR_INVALID_PARAMETERS  ProtocolFile is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    BusprofileLen tells the text's length
 * PGSP_ERR_NO_MORE_ITEMS       index lies past the last one
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such protocol
 * PGSP_ERR_PARAM_NOT_FOUND     the protocol has no bus profiles
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_ProtocolGetEnumBusprofilesBL(const wchar_t* ProtocolFile, uint32_t index, wchar_t* Busprofile,
                                          uint32_t* BusprofileLen);

/*
 * Enumerates the baud rates that a protocol allows, in all or under a bus profile.
 *
 *   ProtocolFile  in      the protocol
 *   Profile       in      the bus profile by its number, a word isn't known here; null or "" for all
 *   index         in      which one
 *   Baudrate      out     buffer for the baud rate's text
 *   BaudrateLen   in/out  its length in characters
 *
 * Results as PGSP_ProtocolGetEnumBusprofilesBL; PGSP_ERR_PARAM_NOT_FOUND when there is no such profile or no
 * list of baud rates.
 */
int32_t PGSP_ProtocolGetEnumBaudrateBL(const wchar_t* ProtocolFile, const wchar_t* Profile, uint32_t index,
                                       wchar_t* Baudrate, uint32_t* BaudrateLen);

/*
 * Reads one thing that a protocol says: an attribute of its root element if there is one of this name, and
 * otherwise what the given arguments lead to.
 *
 *   CPType     in      the protocol
 *   Parameter  in      the parameter
 *   Value      in      not given: Attribute is a constraint word of Parameter. Given: a value of Parameter, a
 *                      bus profile also by its word, and Attribute is a parameter to which it gives a value
 *   SubParam   in      with SubValue: a parameter below that value
 *   SubValue   in      a value of SubParam; when one of the two is not given, both are not looked at
 *   Attribute  in      what is asked for; null or "" stands for "(default)"
 *   Text       out     buffer for the answer
 *   dwText     in/out  its length in characters
 *
 * PGSP_OK                      Text and dwText are set
 * PGSP_ERR_INVALID_PARAMETERS  CPType is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwText tells the answer's length
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such protocol
 * PGSP_ERR_PARAM_NOT_FOUND     the protocol doesn't say
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_ProtocolGetValueBL(const wchar_t* CPType, const wchar_t* Parameter, const wchar_t* Value,
                                const wchar_t* SubParam, const wchar_t* SubValue, const wchar_t* Attribute,
                                wchar_t* Text, uint32_t* dwText);

/*
 * Reads a value that a parameter's value gives to another parameter, by a path.
 *
 *   CPType         in      the protocol
 *   ParameterPath  in      parameter\value or parameter\value\subparameter\subvalue, with "Constraints\" in
 *                          front when it lies there; null or "" for an attribute of the root element
 *   Attribute      in      what is asked for; null or "" stands for "(default)"
 *   Value          out     buffer for the value
 *   dwValue        in/out  its length in characters
 *
 * PGSP_OK                          Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS      CPType is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT        dwValue tells the value's length
 * PGSP_ERR_FILE_NOT_FOUND          there is no such protocol (with a path)
 * PGSP_ERR_CANT_LOAD_XML_FILE      there is none (without), or its file is malformed or over 10,000,000 bytes
 * PGSP_ERR_PARAM_NOT_FOUND         the protocol has no such value
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  COM isn't initialised on this thread (with a path)
 * PGSP_ERR_FOLDER_NOT_FOUND        the program folder can't be found
 */
int32_t PGSP_ProtocolGetValueRawBL(const wchar_t* CPType, const wchar_t* ParameterPath,
                                   const wchar_t* Attribute, wchar_t* Value, uint32_t* dwValue);

/* Texts: what a person is shown of an object, in the person's language --------------------------------
 *
 * A file's section UserInterface (any flag but 0) or UserInterface64 (flag 0) links names to numbers in a
 * resource library, which lies in a folder per language below a root. The root is the path that the link
 * tells, with environment variables in it; it is the program folder's "bin" for a link without a path, one
 * whose path holds "%commonpath%", and one whose path becomes longer than 259 characters. A library that
 * isn't there in the language is looked for under "en"; a number that a library lacks isn't. No code of a
 * library is run, and none stays open.
 */

/*
 * Reads a text of a log device, a log name, a board.
 *
 *   LogDevice, LogName, Board
 *              in      the object; a board by its DeviceID, of which a leading "*" is dropped, or by its
 *                      file's name
 *   Parameter  in      the link's name; with a backslash and a decimal number behind it, the text that many
 *                      numbers further on or, with a sign, back
 *   Language   in      a language of two characters in any case; any other text, or null, is the user's own
 *   Value      out     buffer for the text
 *   dwValue    in/out  its length in characters
 *   flag       in      the section of links
 *
 * PGSP_OK                      Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  there is a text, and dwValue is null. A null Value with a length of 0 asks for
 *                              the text's length; with room it takes nothing, and the result is PGSP_OK
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValue tells the text's length; also, with dwValue as it was, for an escaped
 *                              path of 260 characters or more
 * PGSP_ERR_CANT_LOAD_DLL       neither library can be loaded, or the library's name holds a backslash
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such object, or its file can't be read; so for one without a name
 * PGSP_ERR_PARAM_NOT_FOUND     it has no such link, or its file isn't well-formed up to it
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder, or for log devices and log names the data folder, can't be
 *                              found
 * PGSP_ERR_CANT_LOAD_RESOURCE  the library has no text of this number, or an empty one
 */
int32_t PGSP_LogDeviceGetResourceStringBL(const wchar_t* LogDevice, const wchar_t* Parameter,
                                          const wchar_t* Language, wchar_t* Value, uint32_t* dwValue,
                                          int32_t flag);
int32_t PGSP_LogNameGetResourceStringBL(const wchar_t* LogName, const wchar_t* Parameter,
                                        const wchar_t* Language, wchar_t* Value, uint32_t* dwValue,
                                        int32_t flag);
int32_t PGSP_BoardGetResourceStringBL(const wchar_t* Board, const wchar_t* Parameter, const wchar_t* Language,
                                      wchar_t* Value, uint32_t* dwValue, int32_t flag);

/*
 * Reads a text of a file of the catalogue.
 *
 *   FolderName    in  "Boards", "Protocols", "DefaultLogDevices", in any case, or another folder beside those
 *   TemplateName  in  the file's name, in those three also without its prefix, which is known in this case
 *                     alone. Of a board's a leading "*" is dropped. A template's without it is escaped once
 *                     more than its file's name, so that one with such characters is found by its whole name
 *
 * and all else as above, but that PGSP_ERR_INVALID_PARAMETERS is also the result when one of the two is null
 * or empty.
 */
int32_t PGSP_TemplateGetResourceStringBL(const wchar_t* FolderName, const wchar_t* TemplateName,
                                         const wchar_t* Parameter, const wchar_t* Language, wchar_t* Value,
                                         uint32_t* dwValue, int32_t flag);

/* Files of the catalogue: boards, protocols and templates alike -----------------------------------------
 *
 * A folder word is "Boards", "Protocols" or "DefaultLogDevices" in any case, or the name of another folder
 * beside those. In the three a file is named as a person knows it, a board also with a leading "*", or by its
 * file's name with the prefix that those begin with; the prefix is known anywhere in a name, in this case
 * unless names are looked for in small letters. In another folder, and where it is said, a file is named by
 * its file's name alone. ".xml" may be left out.
 */

/*
 * Tells whether a file of the catalogue exists and may be used, or whether a template has a subdevice.
 *
 *   Folder    in  the folder word
 *   Template  in  the file's name; in the three folders it is looked for in small letters, but for a
 *                 template's without its prefix. In "DefaultLogDevices", which has to be in this case for it,
 *                 also file\subdevices\sub with the whole name of the file
 *   flag      in  what is asked: 0 existence, 2 writing, 4 reading, 6 both; for a subdevice it isn't looked
 *                 at, but has to be one of these
 *
 * PGSP_OK                      it does
 * PGSP_ERR_ACCESS_DENIED       it exists, the access isn't allowed
 * PGSP_ERR_INVALID_PARAMETERS  Folder or Template is null, flag is another number, or the name makes no path;
 *                              a template's also when it is empty
 * PGSP_ERR_BUFFER_TOO_SHORT    a template's escaped name has 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND      there is no such file
 * PGSP_ERR_CANT_LOAD_XML_FILE  the template of the subdevice can't be read
 * PGSP_ERR_PARAM_NOT_FOUND     the template has no such subdevice
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_TemplateExistBL(const wchar_t* Folder, const wchar_t* Template, int32_t flag);

/*
 * Tells whether a file of the catalogue holds what a key names.
 *
 *   Folder    in  the folder word; in another folder every key is there, and no file is looked at
 *   Template  in  the file's name, looked for in small letters but for a template's without its prefix
 *   Key       in  a path such as "Constraints\baudrate". Of a board two parts count, of a protocol four
 *   flag      in  not used
 *
 * PGSP_OK                      it does
 * PGSP_ERR_INVALID_PARAMETERS  a name is null or empty, or Key has more than three parts, of a protocol five
 * PGSP_ERR_BUFFER_TOO_SHORT    the escaped path has 260 characters or more
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such file
 * PGSP_ERR_PARAM_NOT_FOUND     it doesn't
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_TemplateKeyExistsBL(const wchar_t* Folder, const wchar_t* Template, const wchar_t* Key,
                                 int32_t flag);

/*
 * Enumerates a list of values of a file of the catalogue.
 *
 *   Folder    in      the folder word
 *   Template  in      the file's name
 *   Key       in      the list's path, such as "Constraints\baudrate"
 *   index     in      which one
 *   Value     out     buffer for the value
 *   dwValue   in/out  its length in characters
 *
 * The list is that of the file as it was read first; see PGSP_BoardGetValueCollectionBL.
 *
 * PGSP_OK                      Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  Folder or Template is null or empty, or Key or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValue tells the value's length; also, with dwValue as it was, for an escaped
 *                              path of 260 characters or more
 * PGSP_ERR_NO_MORE_ITEMS       index lies past the last one
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such file
 * PGSP_ERR_PARAM_NOT_FOUND     the file has no such list
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_TemplateGetEnumValueRawBL(const wchar_t* Folder, const wchar_t* Template, const wchar_t* Key,
                                       uint32_t index, wchar_t* Value, uint32_t* dwValue);

/*
 * Reads a word that a file of the catalogue has for a parameter. An answer, also that there is none, stays as
 * it was read first until the process ends.
 *
 *   FolderName  in      the folder word
 *   fileName    in      the file's name; a template's with what it begins with
 *   Parameter   in      the parameter
 *   Constraint  in      the word, such as "type", "min" or "default"
 *   Value       out     buffer for the word's text
 *   dwValue     in/out  its length in characters
 *
 * PGSP_OK                      Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  a name is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValue tells the text's length
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such file
 * PGSP_ERR_PARAM_NOT_FOUND     the file has no such parameter or word
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_TemplateGetConstraintBL(const wchar_t* FolderName, const wchar_t* fileName,
                                     const wchar_t* Parameter, const wchar_t* Constraint, wchar_t* Value,
                                     uint32_t* dwValue);

/*
 * Sets a parameter in a file of the catalogue, of a section of log devices or boards; it has to be there.
 *
 *   Folder     in  the folder word; null is like ""
 *   fileName   in  the file's name; null is like "", and then nobody is notified
 *   Parameter  in  the parameter. Unless the value is a number or a truth value, without blanks and without
 *                  any of  []^!"$%&()=?'#+><*|;,  the section sign and the acute accent
 *   Value      in  the value, without < and >; whether it suits the kind of its entry isn't looked at
 *
 * PGSP_OK                          set, or set already: a value that differs in case alone is the same
 * PGSP_ERR_INVALID_PARAMETERS      Parameter is null or empty, Value is null, or a character isn't allowed
 * PGSP_ERR_BUFFER_TOO_SHORT        the path has 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND          there is no such file
 * PGSP_ERR_CANT_LOAD_XML_FILE      the file is malformed or over 10,000,000 bytes
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  the document engine can't be created
 * PGSP_ERR_CANT_SET_VALUE          the file has no such parameter, or XML can't hold the value
 * PGSP_ERR_FOLDER_NOT_FOUND        the program folder can't be found
 *
 * Notifies "meta", fileName as it was given, when the value has changed. What the library knows of the file
 * already is not made anew by it.
 */
int32_t PGSP_TemplateSetValueBL(const wchar_t* Folder, const wchar_t* fileName, const wchar_t* Parameter,
                                const wchar_t* Value);

/* Templates read as the log devices that are made from them --------------------------------------------
 *
 * A template is named with or without what its file's name begins with, "Automation-OnlineAccess-LDT-".
 */

/*
 * Enumerates what a template's file holds: ask for index 0, 1, 2 and so on until the result isn't PGSP_OK.
 *
 *   DefDevice  in      the template
 *   index      in      which one
 *   Parameter  out     buffer for the name
 *   parLen     in/out  its length in characters
 *   Value      out     buffer for the value
 *   valLen     in/out  its length in characters
 *
 * PGSP_OK                      all four are set
 * PGSP_ERR_INVALID_PARAMETERS  DefDevice is null or empty, an output is null, or a length is 0
 * PGSP_ERR_BUFFER_TOO_SHORT    a buffer is too small and its length now tells; the name goes first, so a name
 *                              that doesn't fit leaves Value and valLen as they were
 * PGSP_ERR_NO_MORE_ITEMS       index lies past the last one. The file is read anew then
 * PGSP_ERR_FILE_NOT_FOUND      there is no such template
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_DefDeviceGetEnumValueBL(const wchar_t* DefDevice, uint32_t index, wchar_t* Parameter,
                                     uint32_t* parLen, wchar_t* Value, uint32_t* valLen);

/*
 * Reads one value of a template: an attribute of its root element, or else a parameter of DeviceHeader,
 * LocalSettings, NetworkSettings, Bindings or Ndi in this order, or else a link as "library,function" or
 * "library,number". A place whose value doesn't fit the buffer is passed over like one without.
 *
 *   DefDevice  in      the template
 *   Parameter  in      the parameter; null or "" stands for "(default)"
 *   Value      out     buffer for the value
 *   dwValue    in/out  its length in characters
 *   flag       in      the section of links: 0 UserInterface64, any other number UserInterface
 *
 * Links are found only in a template whose name is also its file's name.
 *
 * PGSP_OK                      Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  DefDevice is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    a link doesn't fit; dwValue tells its length
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such template; or it has no such value, and its name isn't its
 *                              file's
 * PGSP_ERR_PARAM_NOT_FOUND     the template has no such value
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_DefDeviceGetValueBL(const wchar_t* DefDevice, const wchar_t* Parameter, wchar_t* Value,
                                 uint32_t* dwValue, int32_t flag);

/*
 * Reads one value of a template from a place that the caller names.
 *
 *   DefDevice      in      the template
 *   ParameterPath  in      the section, or section\section below it; null or "" for an attribute of the root
 *                          element
 *   Parameter      in      the parameter, or the attribute; it has to be given
 *   Value          out     buffer for the value
 *   dwValue        in/out  its length in characters
 *
 * PGSP_OK                      Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  DefDevice or Parameter is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValue tells the value's length
 * PGSP_ERR_CANT_LOAD_XML_FILE  there is no such template
 * PGSP_ERR_PARAM_NOT_FOUND     it has no such value there
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_DefDeviceGetValueRawBL(const wchar_t* DefDevice, const wchar_t* ParameterPath,
                                    const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue);

/* Lists of files ------------------------------------------------------------------------------------ */

/*
 * Reads the names of all files of a catalogue folder, as the files are called, in the folder's order. The
 * listing is taken at the first call and stays until the process ends.
 *
 *   FolderName   in      "Boards", "Protocols", "DefaultLogDevices" or another folder beside those
 *   Templates    out     buffer for the names, each with its terminator, and one more behind the last
 *   dwTemplates  in/out  its length in characters; out, the characters written with all terminators
 *
 * PGSP_OK                      both are set; a folder that isn't there is an empty list
 * PGSP_ERR_INVALID_PARAMETERS  FolderName is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwTemplates tells the characters needed, and the buffer's first 260 characters
 *                              are as they were; or only the last terminator has no room, and dwTemplates
 *                              tells what was written
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_TemplateGetListBL(const wchar_t* FolderName, wchar_t* Templates, uint32_t* dwTemplates);

/*
 * Enumerates the files of a catalogue folder as the files are called.
 *
 *   FolderName    in      as above
 *   index         in      which one
 *   TemplateName  out     buffer for the name, without extension
 *   TemplateLen   in/out  its length in characters
 *
 * PGSP_OK                      both are set
 * PGSP_ERR_INVALID_PARAMETERS  FolderName is null or empty, an output is null, or the length is 0
 * PGSP_ERR_BUFFER_TOO_SHORT    TemplateLen tells the name's length
 * PGSP_ERR_NO_MORE_ITEMS       index lies past the last one, or there is no such folder
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_TemplateGetEnumBL(const wchar_t* FolderName, uint32_t index, wchar_t* TemplateName,
                               uint32_t* TemplateLen);

/*
 * Enumerates the files of a catalogue folder as a person knows them: boards by their DeviceID, all others
 * without what file names of the catalogue begin with.
 *
 *   FolderName    in      as above
 *   index         in      which one
 *   TemplateName  out     buffer for the name; may be null to learn the length by PGSP_ERR_BUFFER_TOO_SHORT
 *   TemplateLen   in/out  its length in characters
 *
 * PGSP_OK                      both are set
 * PGSP_ERR_INVALID_PARAMETERS  FolderName is null or empty, or TemplateLen is null and there is such a file
 * PGSP_ERR_BUFFER_TOO_SHORT    TemplateLen tells the name's length
 * PGSP_ERR_NO_MORE_ITEMS       index lies past the last one
 * PGSP_ERR_FOLDER_NOT_FOUND    the program folder can't be found
 */
int32_t PGSP_TemplateGetEnumNoPrefixBL(const wchar_t* FolderName, uint32_t index, wchar_t* TemplateName,
                                       uint32_t* TemplateLen);

/*
 * Read the names of all log devices and of all log names, hidden and temporary ones too.
 *
 *   LogDevices, LogNames      out     buffer for the names, each with its terminator, and one more behind
 *   dwLogDevices, dwLogNames  in/out  its length in characters; out, the characters written
 *
 * Results as PGSP_TemplateGetListBL, but the folder is the data folder.
 */
int32_t PGSP_GetLogDeviceListBL(wchar_t* LogDevices, uint32_t* dwLogDevices);
int32_t PGSP_GetLogNameListBL(wchar_t* LogNames, uint32_t* dwLogNames);

/*
 * Reads the names of the log devices in which a parameter has a value, or another one. Hidden and temporary
 * log devices take part; those in which the parameter has no value, also no default, or one of 260 characters
 * and more, don't.
 *
 *   EntryName     in      the parameter
 *   EntryValue    in      the value, compared without regard to case
 *   mode          in      1 those that have it, 2 those that have another; any other number finds none
 *   LogDevices    out     buffer for the names, each with its terminator, and one more behind the last
 *   dwLogDevices  in/out  its length in characters; out, the characters written with all terminators
 *
 * Results as PGSP_GetLogDeviceListBL, but that an empty list is
 * PGSP_ERR_NO_MORE_ITEMS       no log device is meant; two terminators, and dwLogDevices is 1
 * and EntryName and EntryValue must not be null or empty either.
 */
int32_t PGSP_GetLogDeviceListExBL(const wchar_t* EntryName, const wchar_t* EntryValue, uint32_t mode,
                                  wchar_t* LogDevices, uint32_t* dwLogDevices);

/* Settings: values of this machine that belong to no log device ---------------------------------------- */

/*
 * Reads one of the machine's settings: what SetValueInPGSP_BL has set, or else what updates have left, or
 * else one of the times that are kept apart.
 *
 *   Parameter  in      the setting
 *   Value      out     buffer for the value
 *   dwValue    in/out  its length in characters
 *
 * PGSP_OK                      Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS  Parameter is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT    dwValue tells the value's length; also, with dwValue as it was, for a path of
 *                              260 characters or more
 * PGSP_ERR_CANT_LOAD_XML_FILE  nothing was ever set, or the file can't be opened
 * PGSP_ERR_PARAM_NOT_FOUND     there is no such setting, or the file isn't well-formed up to it
 * PGSP_ERR_FOLDER_NOT_FOUND    the data folder can't be found
 */
int32_t GetValueInPGSP_BL(const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue);

/*
 * Sets one of the machine's settings; the first one makes the file.
 *
 *   Parameter  in  the setting, without blanks and without any of  []^!"$%&()=?'#+><*|;,  the section sign
 *                  and the acute accent. "LastStartupTime", "LastStartupClock" and "LastChangeDate", in this
 *                  case, are kept apart from all others
 *   Value      in  the value, without < and >
 *
 * PGSP_OK                          set, whether or not the file could be saved, or set already: a value that
 *                                  differs in case alone is the same
 * PGSP_ERR_INVALID_PARAMETERS      Parameter is null or empty, Value is null, or a character isn't allowed,
 *                                  for which the file is made all the same
 * PGSP_ERR_BUFFER_TOO_SHORT        the path has 260 characters or more
 * PGSP_ERR_CANT_CREATE_FILE        the file can't be created or saved
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  the document engine can't be created. The first setting needs COM on the
 *                                  calling thread: without it an empty file stays behind, which nothing can
 *                                  be set in
 * PGSP_ERR_CANT_LOAD_XML_FILE      the file is malformed or over 10,000,000 bytes; a thread without COM then
 *                                  stays initialised
 * PGSP_ERR_CANT_SET_VALUE          the file lacks the section, or XML can't hold the name or the value
 * PGSP_ERR_FOLDER_NOT_FOUND        the data folder can't be found
 *
 * Notifies nobody.
 */
int32_t SetValueInPGSP_BL(const wchar_t* Parameter, const wchar_t* Value);

/* Parameter data: flat files of named parameters, of the catalogue or of a caller's own ------------------
 *
 * A file is found below a root by a folder, perhaps a subfolder, and its name, ".xml" left out. Names of
 * parameters are compared without regard to case. All of these need COM on the calling thread.
 */

/*
 * Reads one parameter of a file.
 *
 *   Folder     in      "meta" in any case for the program folder's folder of that name; any other folder lies
 *                      in the data folder: "data" for what PGSP_SetParameterDataBL writes
 *   Subfolder  in      the folder in it, or folders with backslashes between; null or "" for none
 *   File       in      the file's name
 *   Parameter  in      the parameter
 *   Value      out     buffer for the value; empty, one character, after every failure, whatever dwValue says
 *   dwValue    in/out  its length in characters
 *
 * PGSP_OK                          Value and dwValue are set
 * PGSP_ERR_INVALID_PARAMETERS      Folder, File or Parameter is null or empty, or an output is null
 * PGSP_ERR_BUFFER_TOO_SHORT        dwValue tells the value's length; also, with dwValue as it was, for a path
 *                                  of 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND          there is no such file
 * PGSP_ERR_CANT_LOAD_XML_FILE      the file is malformed or over 10,000,000 bytes
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  COM isn't initialised on this thread
 * PGSP_ERR_PARAM_NOT_FOUND         the file has no such parameter, or it has no value
 * PGSP_ERR_FOLDER_NOT_FOUND        the program folder or the data folder can't be found
 */
int32_t PGSP_GetParameterMetaDataBL(const wchar_t* Folder, const wchar_t* Subfolder, const wchar_t* File,
                                    const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue);

/*
 * Enumerates the parameters of a file.
 *
 *   Folder     in      as above
 *   Subfolder  in      as above
 *   File       in      the file's name
 *   index      in      which one
 *   Parameter  out     buffer for the name; may be null, also to ask for its length with one of 0
 *   parLen     in/out  its length in characters
 *   Value      out     buffer for the value, which is written first; may be null likewise. It is empty, one
 *                      character, when the value isn't told, whatever valLen says
 *   valLen     in/out  its length in characters
 *
 * PGSP_OK                          all four are set, but for a null buffer that is said to have room and its
 *                                  length. A child that an entry lacks is empty
 * PGSP_ERR_INVALID_PARAMETERS      Folder or File is null or empty, or a length is null that is to be set
 * PGSP_ERR_BUFFER_TOO_SHORT        a buffer is too small and its length now tells. A value that doesn't fit
 *                                  leaves Parameter and parLen as they were; when the name alone doesn't, the
 *                                  value has been told. Also for a path of 260 characters or more
 * PGSP_ERR_PARAM_NOT_FOUND         index lies past the last one
 * PGSP_ERR_FILE_NOT_FOUND, PGSP_ERR_CANT_LOAD_XML_FILE, PGSP_ERR_CANT_CREATE_XML_ENGINE,
 * PGSP_ERR_FOLDER_NOT_FOUND        as above
 */
int32_t PGSP_EnumParameterMetaDataBL(const wchar_t* Folder, const wchar_t* Subfolder, const wchar_t* File,
                                     uint32_t index, wchar_t* Parameter, uint32_t* parLen, wchar_t* Value,
                                     uint32_t* valLen);

/*
 * Sets one parameter of a file below the data folder's "data". The file has to be there.
 *
 *   Subfolder  in  the folder in it; null or "" for none
 *   File       in  the file's name
 *   Parameter  in  the parameter; one that isn't there is made
 *   Value      in  the value
 *   Type       in  "int", "bool" in any case, or any other for a text, null too. Parameters of another type
 *                  don't count: the new one then stands behind them, and readers see the first
 *
 * PGSP_OK                          set, whether or not the file could be saved, or set already: here a value
 *                                  in another case is another value
 * PGSP_ERR_INVALID_PARAMETERS      File or Parameter is null or empty, or Value is null
 * PGSP_ERR_BUFFER_TOO_SHORT        the path has 260 characters or more
 * PGSP_ERR_FILE_NOT_FOUND          there is no such file
 * PGSP_ERR_CANT_LOAD_XML_FILE      the file is malformed or over 10,000,000 bytes
 * PGSP_ERR_CANT_CREATE_XML_ENGINE  COM isn't initialised on this thread
 * PGSP_ERR_CANT_SET_VALUE          XML can't hold the name or the value, or the entry has none to set
 * PGSP_ERR_FOLDER_NOT_FOUND        the data folder can't be found
 *
 * Notifies nobody.
 */
int32_t PGSP_SetParameterDataBL(const wchar_t* Subfolder, const wchar_t* File, const wchar_t* Parameter,
                                const wchar_t* Value, const wchar_t* Type);

/*
 * Removes one parameter of a file below the data folder's "data": the first of its name, of whatever type.
 *
 *   Subfolder  in  the folder in it; null or "" for none
 *   File       in  the file's name
 *   Parameter  in  the parameter
 *
 * Results as PGSP_SetParameterDataBL, but that there is no value to be refused; PGSP_ERR_CANT_SET_VALUE when
 * there is no such parameter.
 *
 * Notifies nobody.
 */
int32_t PGSP_DelParameterDataBL(const wchar_t* Subfolder, const wchar_t* File, const wchar_t* Parameter);

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
