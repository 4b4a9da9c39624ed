// The reference client of revision 2026-07-28, told to speak nothing older: node stateless.mjs COMPANION PROJECT
import { Client } from '@modelcontextprotocol/client';
import { StdioClientTransport } from '@modelcontextprotocol/client/stdio';
import { converse } from './conversation.mjs';

const [command, project] = process.argv.slice(2);
const client = new Client(
    { name: 'test', version: '1' },
    { versionNegotiation: { mode: { pin: '2026-07-28' } } },
);
await client.connect(new StdioClientTransport({ command, args: [project], env: process.env }));
await converse(client);
await client.close();
