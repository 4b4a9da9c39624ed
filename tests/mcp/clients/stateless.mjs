// The reference client of revision 2026-07-28, told to speak nothing older: node stateless.mjs COMPANION PROJECT
import { Client, specTypeSchemas } from '@modelcontextprotocol/client';
import { StdioClientTransport } from '@modelcontextprotocol/client/stdio';
import { converse } from './conversation.mjs';
import { watch } from './watched.mjs';

const [command, project] = process.argv.slice(2);
const client = new Client(
    { name: 'test', version: '1' },
    { versionNegotiation: { mode: { pin: '2026-07-28' } } },
);
const transport = new StdioClientTransport({ command, args: [project], env: process.env });
const messageCount = watch(transport, (type, value) => {
    const { issues } = specTypeSchemas[type]['~standard'].validate(value);
    return issues && JSON.stringify(issues);
});
await client.connect(transport);
await converse((name, args, options) => client.callTool({ name, arguments: args }, options), client);
await client.close();
console.log(`${messageCount()} messages are as the protocol has them.`);
