// sim_xcharge: the stand-in for the payment application. It is started with the real one's command
// line and leaves the result file; the cents of the amount decide how (see docs/simulator.md).
#include "simulator/process.h"
#include "simulator/result_file.h"

#include <cstdio>
#include <vector>

int main(int argc, char **argv)
{
    using namespace simulator;
    const std::vector<std::string> words(argv + 1, argv + argc);
    std::string arguments;
    for (const std::string &word : words)
        arguments += word + ' ';
    const PaymentRequest request = parsePaymentRequest(arguments);
    if (request.resultFile.empty()) {
        std::fputs("usage: sim_xcharge /TRANSACTIONTYPE:PreAuth /AMOUNT:48.50 /RECEIPT:1043 "
                   "/CLERK:7 /RESULTFILE:C:/lumbrio/xResultFile.txt "
                   "/PartialApprovalSupport:T\n",
                   stderr);
        return 2;
    }
    if (environmentValue("LUMBRIO_SIM_WINDOW") == "1" && hasDisplay()) {
        logStart(argv[0], request, "asked at the window");
        becomeProgram(ownFolder() + "/sim_xcharge_window", words);
        std::fputs("sim_xcharge: no sim_xcharge_window beside it; the table decides\n", stderr);
    }
    const PaymentOutcome outcome = decide(request);
    logStart(argv[0], request, outcome.name);
    const std::string path = resultPath(request);
    if (!deliver(outcome, path)) {
        std::fprintf(stderr, "sim_xcharge: cannot write %s\n", path.c_str());
        return 1;
    }
    return 0;
}
