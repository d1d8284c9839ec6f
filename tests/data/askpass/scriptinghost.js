// What the macOS script meets in its scripting host, as far as it uses it. Prints what happens, one
// line each, in percent-encoding. The test puts "var answer" before this, which is null for Cancel,
// and the script and a call of enter() after it.

var exitCode = null;

function tell(what, value) {
    print(what + " " + encodeURIComponent(value));
}

var application = {
    activate: function () { tell("activate", ""); },
    displayDialog: function (text, options) {
        if (application.includeStandardAdditions !== true)
            throw new TypeError("displayDialog is a standard addition");
        tell("text", text);
        tell("options", JSON.stringify(options));
        if (answer === null) {
            var cancelled = new Error("User canceled.");
            cancelled.errorNumber = -128;
            throw cancelled;
        }
        return { buttonReturned: options.defaultButton, textReturned: decodeURIComponent(answer) };
    }
};

var Application = { currentApplication: function () { return application; } };

var imported = {};
var ObjC = { "import": function (framework) { imported[framework] = true; } };

function $(text) {
    if (!imported.Foundation || typeof text !== "string")
        throw new TypeError("only texts are made Foundation's");
    return { dataUsingEncoding: function (encoding) {
        if (encoding !== $.NSUTF8StringEncoding)
            throw new TypeError("not UTF-8");
        return { utf8: text };
    } };
}

$.NSUTF8StringEncoding = 4;
$.NSFileHandle = { fileHandleWithStandardOutput: {
    writeData: function (data) { tell("output", data.utf8); }
} };
$.exit = function (code) {
    if (!imported.stdlib)
        throw new TypeError("exit is the C library's");
    exitCode = code;
    throw new Error("the process is gone");
};

// An error that the script leaves to the host ends it with 1, and a result is printed.
function enter() {
    try {
        tell("result", run());
    } catch (error) {
        if (exitCode === null)
            tell("error", error.errorNumber === undefined ? error : error.errorNumber);
        else
            tell("exit", exitCode);
    }
}
