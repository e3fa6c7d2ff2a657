/*
 * A management process in another address space: it reaches the switch
 * adapter's commands through a running `zesh serve` daemon with the
 * interface manager's C client, sets the MTU and reads it back. The socket
 * is the first argument, or $ZE_IFM_SOCKET.
 */
#include <stdint.h>
#include <stdio.h>
#include <string.h>

#include "ze_ifm_client.h"

int main(int argc, char **argv) {
    if (argc > 1 && ze_ifm_client_connect(argv[1]) != 0) {
        printf("remote: no daemon at %s\n", argv[1]);
        return 1;
    }
    /* Request structures are words in the daemon's byte order: the same
     * processor here. */
    uint32_t set_mtu[2] = {3, 1600};
    uint32_t r = ze_ifm_client_call("lsw_port_set_mtu", set_mtu, sizeof set_mtu, NULL, NULL, NULL);
    if (r != 0) {
        printf("remote: lsw_port_set_mtu answered 0x%08x\n", r);
        return 1;
    }
    uint32_t get_mtu[2] = {0, 0};
    uint32_t reply_len = sizeof get_mtu;
    r = ze_ifm_client_call("lsw_port_get_mtu", get_mtu, sizeof get_mtu, get_mtu, &reply_len, NULL);
    if (r != 0 || reply_len != sizeof get_mtu || get_mtu[1] != 1600) {
        printf("remote: lsw_port_get_mtu answered 0x%08x, reply %u bytes, MTU %u\n", r, reply_len, get_mtu[1]);
        return 1;
    }
    ze_ifm_client_disconnect();
    printf("remote: ok (MTU %u through the daemon)\n", get_mtu[1]);
    return 0;
}
