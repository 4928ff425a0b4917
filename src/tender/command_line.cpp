#include "tender/command_line.h"

namespace tender {

namespace {

/// The parts in their order; each carries the blank that stands before it on the command line.
std::vector<std::string> parts(const PaymentCall &call)
{
    std::vector<std::string> list = {std::string(" /TRANSACTIONTYPE:") +
                                         (call.purchase ? "Purchase" : "PreAuth"),
                                     " /LOCKTRANTYPE",
                                     " /AMOUNT:" + call.amount,
                                     " /LOCKAMOUNT",
                                     " /RECEIPT:" + call.receipt,
                                     " /LOCKRECEIPT",
                                     " /CLERK:" + call.clerk,
                                     " /LOCKCLERK",
                                     std::string(" /RESULTFILE:") + kResultFile,
                                     " /AUTOCLOSE"};
    if (call.partialSupport)
        list.emplace_back(" /PartialApprovalSupport:T");
    list.push_back(" /USERID:" + call.userId);
    list.push_back(" /PASSWORD:" + call.password);
    for (const char *option :
         {" /STAYONTOP", " /SMARTAUTOPROCESS", " /HIDEMAINMENU", " /GETXCACCOUNTID",
          " /TOOLBAREXITBUTTON", " /LARGEWINDOW", " /TITLE:Lumbrio-Credit_Card_Processing "})
        list.emplace_back(option);
    return list;
}

} // namespace

std::string argumentValue(std::string_view value)
{
    return std::string(value.substr(0, value.find(" /")));
}

std::string commandLine(const PaymentCall &call)
{
    std::string line = kXchargeProgram;
    for (const std::string &part : parts(call))
        line += part;
    return line;
}

std::vector<std::string> commandLineParts(const PaymentCall &call)
{
    std::vector<std::string> lines = parts(call);
    for (std::string &line : lines)
        line.erase(0, 1);
    return lines;
}

} // namespace tender
