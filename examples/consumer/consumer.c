/*
 * A management process in miniature: it links the installed switch adapter
 * library, changes two settings of the global attribute block and reads them
 * back, and checks the library's argument checks. It asks nothing of the
 * driver beyond storing the blocks it is sent, so it runs on the simulator
 * and on any platform that does that.
 */
#include <stdint.h>
#include <stdio.h>

#include "ze_chip.h"
#include "ze_lsw_port.h"

static int failures;

static void expect(const char *what, uint32_t got, uint32_t want) {
    if (got == want) return;
    printf("%s: got 0x%08x, expected 0x%08x\n", what, got, want);
    ++failures;
}

int main(void) {
    uint32_t mode = 0xffffffffu, mtu = 0;

    expect("set up mode EPON", ze_chip_set_upmode(0), 0);
    expect("get up mode", ze_chip_get_upmode(&mode), 0);
    expect("up mode read back", mode, 0);

    expect("set MTU on port 3", ze_lsw_port_set_mtu(3, 1600), 0);
    expect("get MTU on port 0", ze_lsw_port_get_mtu(0, &mtu), 0);
    expect("MTU is switch-wide", mtu, 1600);

    expect("null output pointer", ze_chip_get_upmode(NULL), 31);
    expect("port out of range (any port failure)", ze_lsw_port_set_mtu(9, 1600), 0xffffffffu);

    printf("consumer: %s\n", failures ? "FAILED" : "ok");
    return failures ? 1 : 0;
}
