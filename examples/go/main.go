// client_go calls the library from Go: it lists the log devices with a few of their values, and sets a value.
//
// Nothing but Go's standard library is needed, no C compiler either:
//
//	GOOS=windows GOARCH=amd64 go build
package main

import (
	"errors"
	"fmt"
	"os"
	"runtime"
	"syscall"
	"unsafe"
)

const usage = `usage: client_go list                        prints the log devices with their type and baud rate
       client_go set DEVICE PARAMETER VALUE  sets a value of a log device
`

// The exit statuses, beside 0.
const (
	failed  = 1
	misused = 2
)

var errMisused = errors.New("misused")

// Result codes that are more than a failure here.
const (
	ok             = 0
	bufferTooShort = 234
	noMoreItems    = 259
)

// words tells the codes that these exports answer; a list of all is in norvepa.h.
var words = map[int32]string{
	14:             "ERROR_OUTOFMEMORY",
	87:             "PGSP_ERR_INVALID_PARAMETERS",
	bufferTooShort: "PGSP_ERR_BUFFER_TOO_SHORT",
	noMoreItems:    "PGSP_ERR_NO_MORE_ITEMS",
	8012:           "PGSP_ERR_LOG_DEVICE_NOT_EXISTS",
	8050:           "PGSP_NOT_IN_LIST",
	8052:           "PGSP_NOT_A_BOOL",
	8054:           "PGSP_SET_VAL_LESS_THAN_MIN",
	8056:           "PGSP_SET_VAL_BIGGER_THAN_MAX",
	8058:           "PGSP_NOT_IN_STEP",
	8503:           "PGSP_ERR_FILE_NOT_FOUND",
	8505:           "PGSP_ERR_CANT_CREATE_XML_ENGINE",
	8508:           "PGSP_ERR_CANT_LOAD_XML_FILE",
	8513:           "PGSP_ERR_PARAM_NOT_FOUND",
	8514:           "PGSP_ERR_CANT_SET_VALUE",
	8517:           "PGSP_ERR_FOLDER_NOT_FOUND",
}

// failure is a result code as an error.
type failure struct {
	call string
	code int32
}

func (f failure) Error() string {
	return fmt.Sprintf("%s: %d %s", f.call, f.code, words[f.code])
}

func isCode(err error, code int32) bool {
	var f failure
	return errors.As(err, &f) && f.code == code
}

var (
	library  = syscall.NewLazyDLL("NorvepaBl64x.dll")
	getEnum  = library.NewProc("LogDeviceGetEnumBL")
	getValue = library.NewProc("LogDeviceGetValueBL")
	setValue = library.NewProc("LogDeviceSetValueBL")
)

func told(export *syscall.LazyProc, result uintptr) error {
	if code := int32(result); code != ok {
		return failure{export.Name, code}
	}
	return nil
}

// readText calls an export with a buffer that grows for as long as the text doesn't fit. Of a length that comes
// back as it went in twice the room shows whether it was the text, or else a path, that was too long.
func readText(export *syscall.LazyProc, call func(text *uint16, length *uint32) uintptr) (string, error) {
	room, doubled := uint32(512), false
	for {
		buffer := make([]uint16, room)
		length := room
		err := told(export, call(&buffer[0], &length))
		switch {
		case err == nil:
			return syscall.UTF16ToString(buffer[:length]), nil
		case !isCode(err, bufferTooShort), length < room, length == room && doubled:
			return "", err
		case length == room:
			room, doubled = 2*room, true
		default:
			room = length + 1
		}
	}
}

// utf16 turns a word of the command line into a text with a terminator.
func utf16(text string) (*uint16, error) {
	return syscall.UTF16PtrFromString(text)
}

func deviceAt(index uint32) (string, error) {
	return readText(getEnum, func(name *uint16, length *uint32) uintptr {
		result, _, _ := getEnum.Call(0, uintptr(index), uintptr(unsafe.Pointer(name)),
			uintptr(unsafe.Pointer(length)))
		return result
	})
}

func value(device, parameter string) (string, error) {
	devicePointer, err := utf16(device)
	if err != nil {
		return "", err
	}
	parameterPointer, err := utf16(parameter)
	if err != nil {
		return "", err
	}
	return readText(getValue, func(text *uint16, length *uint32) uintptr {
		result, _, _ := getValue.Call(uintptr(unsafe.Pointer(devicePointer)),
			uintptr(unsafe.Pointer(parameterPointer)), uintptr(unsafe.Pointer(text)),
			uintptr(unsafe.Pointer(length)))
		return result
	})
}

func list() error {
	for index := uint32(0); ; index++ {
		device, err := deviceAt(index)
		if isCode(err, noMoreItems) {
			return nil
		}
		if err != nil {
			return err
		}
		protocol, err := value(device, "CP_TYPE")
		if err != nil {
			return fmt.Errorf("%s: %w", device, err)
		}
		speed, err := value(device, "baudrate")
		if err != nil {
			speed = "-" // not every protocol has one
		}
		fmt.Printf("%-24s %-8s %9s\n", device, protocol, speed)
	}
}

func set(device, parameter, text string) error {
	var pointers [3]*uint16
	for i, word := range []string{device, parameter, text} {
		pointer, err := utf16(word)
		if err != nil {
			return fmt.Errorf("%q: %w", word, err)
		}
		pointers[i] = pointer
	}
	result, _, _ := setValue.Call(uintptr(unsafe.Pointer(pointers[0])), uintptr(unsafe.Pointer(pointers[1])),
		uintptr(unsafe.Pointer(pointers[2])))
	if err := told(setValue, result); err != nil {
		return fmt.Errorf("%s, %s: %w", device, parameter, err)
	}
	return nil
}

func run(arguments []string) error {
	switch {
	case len(arguments) == 1 && arguments[0] == "list":
		return list()
	case len(arguments) == 4 && arguments[0] == "set":
		return set(arguments[1], arguments[2], arguments[3])
	default:
		return errMisused
	}
}

// A thread that writes has COM initialised, and the one that loads the library has: Go would otherwise go on with
// another one.
func init() {
	runtime.LockOSThread()
}

func main() {
	err := library.Load()
	if err == nil {
		err = run(os.Args[1:])
	}
	switch {
	case errors.Is(err, errMisused):
		fmt.Fprint(os.Stderr, usage)
		os.Exit(misused)
	case err != nil:
		fmt.Fprintln(os.Stderr, "client_go:", err)
		os.Exit(failed)
	}
}
