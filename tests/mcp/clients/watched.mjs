// A transport whose messages are checked, as they come in, against the schemas that a client library brings along.
import assert from 'node:assert/strict';

const resultTypes = {
    initialize: 'InitializeResult',
    'server/discover': 'DiscoverResult',
    ping: 'EmptyResult',
    'tools/list': 'ListToolsResult',
    'tools/call': 'CallToolResult',
    'resources/list': 'ListResourcesResult',
    'resources/read': 'ReadResourceResult',
    'prompts/list': 'ListPromptsResult',
    'prompts/get': 'GetPromptResult',
};

/**
 * `faultIn(type, value)` says what keeps a value from being of a type of the protocol, and nothing when it is one.
 * Gives the number of messages that were looked at; what is wrong with one is thrown by the call.
 */
export function watch(transport, faultIn) {
    const methods = new Map();
    const faults = [];
    let count = 0;
    const check = (type, value) => {
        const fault = faultIn(type, value);
        if (fault) faults.push(`${type}: ${fault} in ${JSON.stringify(value).slice(0, 300)}`);
    };

    const send = transport.send.bind(transport);
    transport.send = (message, ...rest) => {
        if (message.id !== undefined) methods.set(message.id, message.method);
        return send(message, ...rest);
    };
    let receive;
    Object.defineProperty(transport, 'onmessage', {
        get: () => receive,
        set: (handler) => {
            receive = handler && ((message, ...rest) => {
                ++count;
                check('JSONRPCMessage', message);
                if (message.result !== undefined) {
                    const method = methods.get(message.id);
                    assert.ok(resultTypes[method], `an answer to ${method}`);
                    check(resultTypes[method], message.result);
                }
                return handler(message, ...rest);
            });
        },
    });
    return () => {
        assert.deepEqual(faults, []);
        return count;
    };
}
