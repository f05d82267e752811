"""Number and prime pools: every entry written without a leading zero."""


def primes_of_length(digits):
    low, high = 10 ** (digits - 1), 10 ** digits
    sieve = bytearray([1]) * high
    sieve[0:2] = b"\x00\x00"
    for n in range(2, int(high ** 0.5) + 1):
        if sieve[n]:
            sieve[n * n::n] = bytearray(len(sieve[n * n::n]))
    return [str(n) for n in range(low, high) if sieve[n]]


def numbers_of_length(digits):
    return [str(n) for n in range(10 ** (digits - 1), 10 ** digits)]
